// SPDX-License-Identifier: MIT
// Events of the graph and of our connection.
#pragma once

#include "platform/pipewire/Graph.h"

#include <cstdint>
#include <functional>
#include <string>

namespace fadeloom {

/// None may be null. Called on the graph thread.
struct GraphEvents {
    /// The mirror or the wanted state has changed, or a time requested with `callBackIn` has come. Called once for a
    /// whole burst of the events below.
    std::function<void()> graphChanged;

    /// An output stream has appeared, with only its registry properties known so far.
    std::function<void(const GraphNode&)> streamAppeared;
    /// More properties of an output stream, or of a client, are known.
    std::function<void(const GraphNode&)> streamChanged;
    std::function<void(const GraphClient&)> clientChanged;
    /// The session manager's metadata exists and is completely known; again after each of its restarts.
    std::function<void()> sessionManagerAppeared;
    std::function<void()> sessionManagerVanished;
    /// A metadata value was changed by anybody. An empty value means that it was removed.
    std::function<void(GraphID subject, const std::string& key, const std::string& value)> metadataChanged;
    /// Our own client (`clientWord`); 0 while we have none.
    std::function<void(std::uint64_t client)> ownClientChanged;

    std::function<void()> connected;
    /// The data loop has stalled; all our objects are being dropped, and recreated when it recovers.
    std::function<void()> stalled;
    /// The server is gone, or the first attempt to connect failed: everything created on its core must be dropped
    /// before this returns. The mirror is empty afterwards.
    std::function<void()> disconnected;
};

}  // namespace fadeloom
