// SPDX-License-Identifier: MIT
// The connection to the PipeWire server: keeps the mirror of its graph, and takes itself up again when it is lost.
//
// Everything is handled on one thread of its own, the graph thread. Whoever calls from another thread holds its lock
// (`GraphLock`). Events only change the mirror; what follows from them is done once for a whole burst, in the
// listener's `graphChanged`.
#pragma once

#include "platform/pipewire/Graph.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

struct pw_core;
struct pw_proxy;
struct pw_thread_loop;

namespace fadeloom {

/// Told of what happens, on the graph thread.
class GraphListener {
public:
    /// The mirror or the wanted state has changed, or a time asked for with `callBackIn` has come.
    virtual void graphChanged() = 0;
    /// At once, before the burst that they belong to is over: an output stream has come, of which only the registry has
    /// told so far; more is known of a client, or of an output stream.
    virtual void streamAppeared(const GraphNode& stream) = 0;
    virtual void clientChanged(const GraphClient& client) = 0;
    virtual void streamChanged(const GraphNode& stream) = 0;
    /// The session manager's metadata is there and known in full; again after each of its restarts.
    virtual void sessionManagerAppeared() = 0;
    virtual void sessionManagerVanished() = 0;
    /// A metadata value was changed by somebody. An empty value means that it was removed.
    virtual void metadataChanged(GraphID subject, const std::string& key, const std::string& value) = 0;
    virtual void connected() = 0;
    /// The data loop does no work; everything of ours is being given back, and made anew once it goes on.
    virtual void stalled() = 0;
    /// Which client we are (`clientWord`); 0 once we are none.
    virtual void ownClientChanged(std::uint64_t client) = 0;
    /// The server is gone, or could not be reached at the first try: drop everything that was made on its core before
    /// this returns. The mirror is empty after it.
    virtual void disconnected() = 0;

protected:
    ~GraphListener() = default;
};

class GraphConnection {
public:
    explicit GraphConnection(GraphListener& listener);
    ~GraphConnection();
    GraphConnection(const GraphConnection&) = delete;
    GraphConnection& operator=(const GraphConnection&) = delete;

    /// Starts the graph thread, which connects and keeps trying.
    void start();
    /// Ends the graph thread, then the connection; the listener is told of the latter and of nothing after it.
    void stop();
    [[nodiscard]] pw_thread_loop* threadLoop() const;

    // All below: on the graph thread, or with its lock held.

    [[nodiscard]] const Graph& graph() const;
    /// Absent while there is no server.
    [[nodiscard]] pw_core* core() const;
    [[nodiscard]] bool hasSessionManager() const;

    /// Writes a metadata value, or removes it when `value` is absent. The mirror follows at once.
    void setMetadata(
        GraphID subject, const std::string& key, const char* type, const std::optional<std::string>& value);
    /// Removes an object of the graph that is not ours, such as a link.
    void destroyGlobal(GraphID id);
    /// While sound runs through us: has our whole connection given up when the data loop stands still.
    void watchDataLoop(bool isNeeded);
    /// Asks for one `graphChanged` in the thread's next turn.
    void requestUpdate();
    /// Asks for one `graphChanged` after `delay`; the earliest time asked for holds.
    void callBackIn(std::chrono::milliseconds delay);

private:
    class Implementation;
    std::unique_ptr<Implementation> implementation_;
};

/// Holds the graph thread's lock.
class GraphLock {
public:
    explicit GraphLock(const GraphConnection& connection);
    ~GraphLock();
    GraphLock(const GraphLock&) = delete;
    GraphLock& operator=(const GraphLock&) = delete;

private:
    pw_thread_loop* loop_;
};

}  // namespace fadeloom
