// SPDX-License-Identifier: MIT
// The focused window on X11.
#pragma once

#include "ctl/CompositorSocket.h"

#include <optional>

namespace fadeloom::ctl {

/// _NET_ACTIVE_WINDOW of the root window, and _NET_WM_PID of that. nullopt if there is no X server, or its window
/// manager does not set them.
[[nodiscard]] std::optional<Focus> focusOfX();

}  // namespace fadeloom::ctl
