// SPDX-License-Identifier: MIT
// Qt's main loop and the main dispatch queue, as they go together on macOS.
//
// A loop with windows is the system's and serves the queue. One without knows sockets and timers only, unless the
// environment asks for the system's before the application object is made.
#pragma once

#include <functional>

namespace doubles {

/// Called in the first turn of the next program's main loop.
std::function<void()>& whenProgramRuns();

}  // namespace doubles
