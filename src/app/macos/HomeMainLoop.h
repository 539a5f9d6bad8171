// SPDX-License-Identifier: MIT
// The main loop on macOS must serve the main dispatch queue.
#pragma once

#include <QByteArray>

namespace fadeloom {

/// Call before creating an application object without windows: by default Qt's loop for those serves only sockets and
/// timers, and no system notification would arrive. One with windows always runs on the system's loop.
inline void prepareMainLoop()
{
    qputenv("QT_EVENT_DISPATCHER_CORE_FOUNDATION", "1");
}

}  // namespace fadeloom
