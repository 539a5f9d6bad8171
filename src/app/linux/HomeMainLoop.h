// SPDX-License-Identifier: MIT
// The main loop on Linux, which is Qt's, unmodified.
#pragma once

namespace fadeloom {

/// Call before creating the application object.
inline void prepareMainLoop() { }

}  // namespace fadeloom
