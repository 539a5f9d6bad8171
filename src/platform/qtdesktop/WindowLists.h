// SPDX-License-Identifier: MIT
// The desktop's lists of windows: taskbars and pagers.
#pragma once

class QWindow;

namespace fadeloom {

/// Keeps the window out of them on X11; elsewhere nothing. Before each time that it is shown, since a window manager
/// forgets it when the window goes. Thread: main.
void leaveOutOfWindowLists(QWindow& window);

}  // namespace fadeloom
