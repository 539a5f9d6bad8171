// SPDX-License-Identifier: MIT
// Makes the server drop everything that another process's connection holds, when that process cannot.
//
// Destroying a client's object is the fastest way to restore the original state: the server removes the client's nodes
// and links at once, and the session manager routes the streams to their devices. The client finds its connection gone,
// and reconnects when it can.
#pragma once

#include "platform/pipewire/Graph.h"

#include <sys/types.h>

#include <cstdint>

namespace fadeloom {

/// A client of the graph as one word, which is never 0: its id, and enough of its serial to detect reuse of the id.
[[nodiscard]] constexpr std::uint64_t clientWord(GraphID id, GraphSerial serial)
{
    constexpr int idBits = 32;
    return serial << idBits | id;
}

/// Destroys the client if it is still the same one and belongs to `process`. Connects to the server and blocks; for a
/// process with nothing else to do.
void releaseClient(std::uint64_t client, pid_t process);

}  // namespace fadeloom
