// SPDX-License-Identifier: MIT
// The window in front on X11.
#pragma once

#include "ctl/CompositorSocket.h"

#include <optional>

namespace fadeloom::ctl {

/// _NET_ACTIVE_WINDOW of the root window, and _NET_WM_PID of that. Absent when there is no X server, or its window
/// manager keeps no such record.
[[nodiscard]] std::optional<Focus> focusOfX();

}  // namespace fadeloom::ctl
