// SPDX-License-Identifier: MIT
// The screens of the desktop as they are now.
#pragma once

#include "platform/qtdesktop/PopoverPlacement.h"

#include <vector>

namespace fadeloom {

/// In the order of QGuiApplication::screens, of which the first is the main one. Needs a QGuiApplication. Thread: main.
[[nodiscard]] std::vector<ScreenArea> currentScreens();

/// Whether windows are those of an X server that draws the desktop itself, and so knows where the pointer is. On Wayland
/// an X server only serves the windows of X, and knows the pointer over these alone.
[[nodiscard]] bool isOnXDesktop();

}  // namespace fadeloom
