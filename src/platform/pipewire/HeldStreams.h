// SPDX-License-Identifier: MIT
// New streams of applications that must not be heard past their tap, not even for one cycle.
//
// A program that starts for each of its sounds is over before a tap for it has been made. So its stream is sent to the
// park in the very event that tells of it, some milliseconds before the session manager looks for a device. There it
// waits without a cycle, and so without losing a sample, until a tap takes it over, or for a while at most.
#pragma once

#include "platform/pipewire/GraphConnection.h"

#include <chrono>
#include <map>
#include <string>

namespace fadeloom {

/// Thread: the graph thread or one that holds its lock.
class HeldStreams {
public:
    explicit HeldStreams(GraphConnection& connection);

    /// Sends a new stream to the park.
    void hold(const GraphNode& stream, const std::string& parkName);
    /// A tap has it now: its target is the tap's business.
    void handOver(GraphID stream);
    /// Lets the session manager place it.
    void release(GraphID stream);
    /// Releases what has been held for too long, and forgets what has gone.
    void update();
    /// The metadata is gone, and with it every target.
    void clear() { held_.clear(); }
    [[nodiscard]] bool has(const GraphNode& stream) const;

private:
    struct Held {
        GraphSerial serial = 0;
        std::chrono::steady_clock::time_point since;
    };

    GraphConnection& connection_;
    std::map<GraphID, Held> held_;
};

}  // namespace fadeloom
