// SPDX-License-Identifier: MIT
// The About panel: the platform's own, with a line about the program and a link to its web page.
#pragma once

#include "shell/Translate.h"

#include <string>

namespace fadeloom {

class Application;

/// Thread: main.
namespace AboutPanel {

/// Opens the panel in front of other windows, or raises an open one. `webPage`: the URL of the product's web page,
/// whose host name the link shows.
void show(Application& application, const Translate& translate, const std::string& webPage);

}  // namespace AboutPanel

}  // namespace fadeloom
