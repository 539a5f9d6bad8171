// SPDX-License-Identifier: MIT
// What happens in the graph and to our connection, as it happens.
#pragma once

#include "platform/pipewire/Graph.h"

#include <cstdint>
#include <functional>
#include <string>

namespace fadeloom {

/// All are set. Called on the graph thread.
struct GraphEvents {
    /// The mirror or the wanted state has changed, or a time asked for with `callBackIn` has come. Once for a whole
    /// burst of the events below.
    std::function<void()> graphChanged;

    /// An output stream has come, of which only the registry is known so far.
    std::function<void(const GraphNode&)> streamAppeared;
    /// More is known of an output stream, or of a client.
    std::function<void(const GraphNode&)> streamChanged;
    std::function<void(const GraphClient&)> clientChanged;
    /// The session manager's metadata exists and is known in full; again after each of its restarts.
    std::function<void()> sessionManagerAppeared;
    std::function<void()> sessionManagerVanished;
    /// A metadata value was changed by somebody. An empty value means that it was removed.
    std::function<void(GraphID subject, const std::string& key, const std::string& value)> metadataChanged;
    /// Which client we are (`clientWord`); 0 once we are none.
    std::function<void(std::uint64_t client)> ownClientChanged;

    std::function<void()> connected;
    /// The data loop does no work; everything of ours is being given back, and made again once it goes on.
    std::function<void()> stalled;
    /// The server is gone, or could not be reached at the first try: everything that was made on its core has to be
    /// dropped before this returns. The mirror is empty after it.
    std::function<void()> disconnected;
};

}  // namespace fadeloom
