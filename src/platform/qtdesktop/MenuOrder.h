// SPDX-License-Identifier: MIT
// The order of the icon's menu in a bar.
#pragma once

#include "platform/StatusItem.h"

namespace fadeloom {

/// The same menu with the group of the entry that does what a click does in front: some bars open the menu on every
/// click, and the first entry is the one that is met.
[[nodiscard]] StatusMenu clickFirst(StatusMenu menu);

}  // namespace fadeloom
