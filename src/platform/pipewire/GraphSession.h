// SPDX-License-Identifier: MIT
// The graph's side of the adapter: what happens on the graph thread, and the few calls that cross over to it.
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

/// Thread: main, but for the private side.
class GraphSession final : private GraphListener {
public:
    struct Callbacks {  // Called on the graph thread.
        std::function<void(std::vector<ChangedProperty>)> changed;
        std::function<void(SystemLog::Level, std::string)> report;
    };

    GraphSession(AudioObjectIDs& ids, Callbacks callbacks);
    /// Gives every application back first.
    ~GraphSession();
    GraphSession(const GraphSession&) = delete;
    GraphSession& operator=(const GraphSession&) = delete;

    [[nodiscard]] std::shared_ptr<const AudioWorld> world() const;
    /// The rate in which a device is driven, in hertz.
    [[nodiscard]] double rateOf(const AudioWorld::Device& device) const;
    [[nodiscard]] bool isConnected() const;
    /// Whether the session manager is there to carry it out.
    bool setDefaultDevice(const std::string& nodeName);

    /// Null when there is no server, or the device has gone.
    [[nodiscard]] TapPath* startPath(std::set<AudioObjectID> processes, const AudioWorld::Device& device,
        AudioIOProc& proc, StreamScope scope = StreamScope::every);
    void setProcesses(TapPath& path, std::set<AudioObjectID> processes);
    /// When this returns the path's procedure is not running; the path may be gone after `releaseStopped`.
    void stopPath(TapPath& path);
    void releaseStopped();

private:
    void graphChanged() override;
    void sessionManagerAppeared() override;
    void sessionManagerVanished() override;
    void metadataChanged(GraphID subject, const std::string& key, const std::string& value) override;
    void connected() override;
    void disconnected() override;

    void publish(AudioWorld next);
    [[nodiscard]] bool watch(std::int32_t pid);
    void watchRates(const AudioWorld& world, std::vector<ChangedProperty>& changes);

    Callbacks callbacks_;
    GraphConnection connection_;
    TapRouter router_;
    AudioWorldBuilder builder_;
    std::map<std::int32_t, std::unique_ptr<ProcessExit>> exits_;  // By pid.
    std::map<AudioObjectID, double> rates_;  // As last told.
    std::atomic<bool> isReady_ = false;  // There is a picture, or nothing to draw one of.
    bool isRecheckDue_ = false;

    mutable std::mutex worldMutex_;  // Held for the copy of a pointer; the IO thread never meets it.
    std::shared_ptr<const AudioWorld> world_;
};

}  // namespace fadeloom
