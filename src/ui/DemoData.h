// SPDX-License-Identifier: MIT
// What the pictures of the panel show.
#pragma once

#include "control/DemoContents.h"

namespace fadeloom {

[[nodiscard]] DemoContents demoContents(Theme theme);

}  // namespace fadeloom
