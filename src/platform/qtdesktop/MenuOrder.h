// SPDX-License-Identifier: MIT
// The order of the icon's menu in a bar.
#pragma once

#include "platform/StatusItem.h"

namespace fadeloom {

/// The same menu, starting with the group of the entry equivalent to a click: some bars open the menu on every click,
/// with the pointer on the first entry.
[[nodiscard]] StatusMenu clickFirst(StatusMenu menu);

}  // namespace fadeloom
