// SPDX-License-Identifier: MIT
// The call apps of macOS. The first versions listed them on every system.
#pragma once

#include "platform/CallApps.h"

#include <vector>

namespace fadeloom {

[[nodiscard]] const std::vector<CallApp>& firstCallApps();

}  // namespace fadeloom
