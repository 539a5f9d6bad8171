// SPDX-License-Identifier: MIT
// What the controller asks for once while an app is there.
#pragma once

#include "platform/Workspace.h"

#include <string>
#include <vector>

namespace fadeloom {

struct AppTraits {
    AppIcon icon{};
    std::vector<std::string> callIDs{};  // As in its row.
};

}  // namespace fadeloom
