// SPDX-License-Identifier: MIT
// The main loop on Linux, which is Qt's as it is.
#pragma once

namespace fadeloom {

/// Before the application object.
inline void prepareMainLoop() { }

}  // namespace fadeloom
