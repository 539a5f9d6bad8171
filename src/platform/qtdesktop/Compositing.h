// SPDX-License-Identifier: MIT
// Whether the desktop mixes windows, so that parts of one may be transparent.
#pragma once

namespace fadeloom {

/// As it is now: a compositor may come and go on X11. Needs a QGuiApplication. Thread: main.
[[nodiscard]] bool isComposited();

}  // namespace fadeloom
