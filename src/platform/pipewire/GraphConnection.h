// SPDX-License-Identifier: MIT
// The connection to the PipeWire server: its thread, timers and reconnection.
//
// Everything runs on a dedicated thread, the graph thread. Callers on other threads hold its lock (`GraphLock`). Events
// only update the mirror; their consequences are handled once per burst, in `graphChanged`.
#pragma once

#include "platform/pipewire/GraphEvents.h"
#include "platform/pipewire/GraphMirror.h"
#include "platform/pipewire/Heartbeat.h"
#include "platform/pipewire/LoopTimer.h"

#include <spa/utils/hook.h>

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

struct pw_context;
struct pw_core;
struct pw_thread_loop;
struct spa_source;

namespace fadeloom {

class GraphConnection {
public:
    explicit GraphConnection(GraphEvents events);
    ~GraphConnection();
    GraphConnection(const GraphConnection&) = delete;
    GraphConnection& operator=(const GraphConnection&) = delete;

    /// Starts the graph thread, which connects and keeps retrying.
    void start();
    /// Ends the graph thread, then the connection, which is the last event.
    void stop();
    [[nodiscard]] pw_thread_loop* threadLoop() const { return loop_; }

    // All below: on the graph thread, or with its lock held.

    /// Empty while there is no server.
    [[nodiscard]] const Graph& graph() const;
    /// nullopt while there is no server.
    [[nodiscard]] pw_core* core() const { return isLost_ ? nullptr : core_; }
    [[nodiscard]] bool hasSessionManager() const { return mirror_ && mirror_->hasSessionManager(); }

    /// Writes a metadata value, or removes it if `value` is nullopt. The mirror is updated immediately.
    void setMetadata(
        GraphID subject, const std::string& key, const char* type, const std::optional<std::string>& value);
    /// Destroys an object of the graph that is not ours, such as a link.
    void destroyGlobal(GraphID id);
    /// While audio runs through us: gives up our whole connection if the data loop stalls.
    void watchDataLoop(bool isNeeded) { heartbeat_->setActive(isNeeded); }
    /// Requests one `graphChanged` in the thread's next iteration.
    void requestUpdate();
    /// Requests one `graphChanged` after `delay`; the earliest requested time wins.
    void callBackIn(std::chrono::milliseconds delay);

private:
    static void onCoreDone(void* self, std::uint32_t id, int sequence);
    static void onCoreError(void* self, std::uint32_t id, int sequence, int result, const char* message);

    void tryToConnect();
    void disconnect();
    void update();
    void releaseEverything();

    const GraphEvents events_;
    pw_thread_loop* loop_ = nullptr;
    pw_context* context_ = nullptr;
    spa_source* update_ = nullptr;
    std::unique_ptr<Heartbeat> heartbeat_;
    std::unique_ptr<LoopTimer> callBackTimer_;
    std::unique_ptr<LoopTimer> retryTimer_;
    std::optional<std::chrono::steady_clock::time_point> callBackAt_;
    int failedAttempts_ = 0;

    pw_core* core_ = nullptr;
    spa_hook coreListener_{};
    std::unique_ptr<GraphMirror> mirror_;  // While there is a core.
    bool isLost_ = false;  // The server has gone; cleaned up in the loop's next iteration.
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
