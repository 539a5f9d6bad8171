// SPDX-License-Identifier: MIT
// Whether the desktop has a compositor, so that parts of a window may be transparent.
#pragma once

namespace fadeloom {

/// The current state: a compositor may start and stop on X11. Needs a QGuiApplication. Thread: main.
[[nodiscard]] bool isComposited();

}  // namespace fadeloom
