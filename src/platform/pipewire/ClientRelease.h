// SPDX-License-Identifier: MIT
// Has the server drop everything that a connection of another process holds, which cannot do so itself.
//
// Destroying a client's object is the quickest way back to how everything was: the server removes the client's nodes
// and links in one go, and the session manager leads the streams to their devices. The client learns that its
// connection is gone, and connects anew once it can.
#pragma once

#include "platform/pipewire/Graph.h"

#include <cstdint>

#include <sys/types.h>

namespace fadeloom {

/// A client of the graph in one word, which is never 0: its id, and as much of its serial as finds the id given to
/// another client since.
[[nodiscard]] constexpr std::uint64_t clientWord(GraphID id, GraphSerial serial)
{
    constexpr int idBits = 32;
    return serial << idBits | id;
}

/// Destroys the client if it is still this one, and says that it belongs to `process`. Connects to the server and waits
/// for it; for a process that has nothing else to do.
void releaseClient(std::uint64_t client, pid_t process);

}  // namespace fadeloom
