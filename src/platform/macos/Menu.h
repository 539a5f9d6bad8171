// SPDX-License-Identifier: MIT
// The menu of the status item. For Objective-C++ only.
#pragma once

#include "platform/StatusItem.h"

@class NSMenu;

namespace fadeloom {

/// The menu keeps what its entries call.
[[nodiscard]] NSMenu* nsMenu(const StatusMenu& entries);

}  // namespace fadeloom
