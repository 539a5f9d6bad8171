// SPDX-License-Identifier: MIT
// The menu of the status item. For Objective-C++ only.
#pragma once

#include "platform/StatusItem.h"

@class NSMenu;

namespace fadeloom {

/// The menu retains what its items call.
[[nodiscard]] NSMenu* nsMenu(const StatusMenu& entries);

}  // namespace fadeloom
