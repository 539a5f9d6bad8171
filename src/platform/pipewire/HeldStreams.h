// SPDX-License-Identifier: MIT
// Holds new streams of applications that must not bypass their tap, not even for one cycle.
//
// A program that starts for each of its sounds exits before a tap for it could be created. So its stream is sent to the
// park in the very event that announces it, some milliseconds before the session manager selects a device. There it is
// not driven, and so loses no sample, until a tap takes it over, or for a limited time.
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
    /// A tap has taken it over, and manages its target.
    void handOver(GraphID stream);
    /// Lets the session manager place it.
    void release(GraphID stream);
    /// Releases streams held for too long, and drops removed ones.
    void update();
    /// The metadata is gone, and with it all targets.
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
