// SPDX-License-Identifier: MIT
// The current screens of the desktop.
#pragma once

#include "platform/qtdesktop/PopoverPlacement.h"

#include <vector>

namespace fadeloom {

/// In the order of QGuiApplication::screens, the primary one first. Needs a QGuiApplication. Thread: main.
[[nodiscard]] std::vector<ScreenArea> currentScreens();

/// Whether windows belong to an X server that displays the whole desktop, and so knows the pointer position. XWayland
/// knows it only over X11 windows.
[[nodiscard]] bool isOnXDesktop();

}  // namespace fadeloom
