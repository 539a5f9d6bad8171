// SPDX-License-Identifier: MIT
// The main loop on macOS has to serve the main dispatch queue.
#pragma once

#include <QByteArray>

namespace fadeloom {

/// Before an application object without windows: unless it is told so, Qt's loop for those knows sockets and timers only,
/// and nothing that the system announces would arrive. One with windows always runs on the system's loop.
inline void prepareMainLoop()
{
    qputenv("QT_EVENT_DISPATCHER_CORE_FOUNDATION", "1");
}

}  // namespace fadeloom
