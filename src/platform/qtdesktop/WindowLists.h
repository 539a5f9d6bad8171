// SPDX-License-Identifier: MIT
// The desktop's lists of windows: taskbars and pagers.
#pragma once

class QWindow;

namespace fadeloom {

/// Removes the window from taskbars and pagers on X11; does nothing elsewhere. Call each time before showing it,
/// because a window manager forgets it when the window is hidden. Thread: main.
void hideFromWindowLists(QWindow& window);

}  // namespace fadeloom
