// SPDX-License-Identifier: MIT
// Integration of Qt's main loop with the main dispatch queue, as on macOS.
//
// A loop with windows is the system's and serves the queue. One without serves only sockets and timers, unless the
// environment requests the system's before the application object is created.
#pragma once

#include <functional>

namespace doubles {

/// Called in the first iteration of the next program's main loop.
std::function<void()>& whenProgramRuns();

}  // namespace doubles
