// SPDX-License-Identifier: MIT
// The call apps of macOS. Early versions used them on all platforms.
#pragma once

#include "platform/CallApps.h"

#include <vector>

namespace fadeloom {

[[nodiscard]] const std::vector<CallApp>& firstCallApps();

}  // namespace fadeloom
