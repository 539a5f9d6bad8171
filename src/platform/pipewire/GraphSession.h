// SPDX-License-Identifier: MIT
// The graph thread's part of the adapter, and the few calls that cross over to it.
#pragma once

#include "platform/SystemLog.h"
#include "platform/pipewire/AudioWorld.h"
#include "platform/pipewire/GraphConnection.h"
#include "platform/pipewire/ProcessExit.h"
#include "platform/pipewire/TapRouter.h"

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <vector>

namespace fadeloom {

/// Thread: main, except for the private members.
class GraphSession {
public:
    struct Callbacks {  // Called on the graph thread.
        std::function<void(const AudioChanges&)> changed;
        std::function<void(SystemLog::Level, std::string)> report;
        /// The application of a process that has just appeared, or of a sandboxed client.
        std::function<std::string(std::int32_t pid, const std::string& portalAppID)> application;
        std::function<void(std::uint64_t)> ownClient;  // As `GraphEvents::ownClientChanged`.
    };

    explicit GraphSession(Callbacks callbacks);
    /// Releases all applications first.
    ~GraphSession();
    GraphSession(const GraphSession&) = delete;
    GraphSession& operator=(const GraphSession&) = delete;

    [[nodiscard]] std::shared_ptr<const AudioWorld> world() const;
    /// The rate at which a device is driven, in hertz.
    [[nodiscard]] double rateOf(const AudioWorld::Device& device) const;
    [[nodiscard]] bool isConnected() const;
    /// Whether there is a session manager to carry it out.
    bool setDefaultDevice(const std::string& nodeName);

    /// The applications whose new streams are held for a tap, by the names that `application` returns.
    void holdStreamsOf(std::set<std::string> applications);

    /// Null if there is no server, or the device has gone.
    [[nodiscard]] TapPath* startPath(std::set<AudioProcessID> processes, const AudioWorld::Device& device,
        std::shared_ptr<AudioIOProc> proc, StreamScope scope = StreamScope::every);
    [[nodiscard]] std::size_t pathCount() const;
    void setProcesses(TapPath& path, std::set<AudioProcessID> processes);
    /// When this returns the path's procedure is not running; the path may be gone after `releaseStopped`.
    void stopPath(TapPath& path);
    void releaseStopped();

private:
    [[nodiscard]] GraphEvents events();
    void graphChanged();
    void streamAppeared(const GraphNode& stream);
    void clientChanged(const GraphClient& client);
    void connected();
    void stalled();
    void disconnected();

    [[nodiscard]] bool isToBeHeld(const GraphClient& client);
    void publish(AudioWorld next);
    [[nodiscard]] bool watch(std::int32_t pid);
    /// Whether a device's rate has changed since the previous call.
    [[nodiscard]] bool updateRates(const AudioWorld& world);

    Callbacks callbacks_;
    GraphConnection connection_;
    TapRouter router_;
    AudioWorldBuilder builder_;
    std::map<std::int32_t, std::unique_ptr<ProcessExit>> exits_;  // By pid.
    std::set<std::string> heldApplications_;
    std::map<GraphSerial, std::string> applications_;  // By client; determined once.
    std::map<OutputDeviceID, double> rates_;
    std::atomic<bool> isReady_ = false;  // There is a snapshot, or nothing to take one of.
    bool isRecheckDue_ = false;

    mutable std::mutex worldMutex_;  // Held only while copying a pointer; never taken by the IO thread.
    std::shared_ptr<const AudioWorld> world_;
};

}  // namespace fadeloom
