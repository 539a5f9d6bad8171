// SPDX-License-Identifier: MIT
// The audio system on PipeWire.
//
// Processes with audio streams are its processes, sinks its devices. A tap is a private node in the same graph cycle as
// application and device; TapRouter.h describes how streams are captured and released. If this program dies, the
// session manager moves every application back to its own device.
#pragma once

#include "platform/AudioSystem.h"
#include "platform/SystemLog.h"
#include "platform/Workspace.h"
#include "platform/pipewire/AudioWorld.h"
#include "platform/pipewire/OpenFiles.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace fadeloom {

class GraphSession;
class MainLoop;

class PipeWireAudioSystem final : public AudioSystem {
public:
    struct Options {
        /// The bundle identifier of a process; the second argument is the application id that the server vouches for,
        /// if the client is sandboxed. Called on the main thread.
        std::function<std::string(ProcessID, const std::string& portalAppID)> bundleIdentifier{};
        /// The same on the graph thread, for a process that has just appeared.
        std::function<std::string(ProcessID, const std::string& portalAppID)> newBundleIdentifier{};
        /// The process of a sandboxed application, whose own pid is meaningless outside; -1 if there is none.
        std::function<ProcessID(const std::string& portalAppID)> portalProcess{};
        /// Messages for the log: connected and disconnected, streams that cannot be moved. Called on the main thread.
        std::function<void(SystemLog::Level, std::string)> report{};
        /// Our client on the server (`clientWord`), 0 for none: destroying it releases every application to its own
        /// device. Called on the graph thread.
        std::function<void(std::uint64_t client)> ownClient{};
    };

    /// Connects automatically, and keeps retrying while there is no server.
    PipeWireAudioSystem(MainLoop& mainLoop, Options options);
    /// Releases every application to its own device first; blocks for that, for a second at most.
    ~PipeWireAudioSystem() override;

    [[nodiscard]] std::vector<AudioProcess> processes(ReadMic readMic) override;
    [[nodiscard]] Subscription whenProcessesChange(Listener listener) override;
    [[nodiscard]] std::vector<OutputDevice> outputDevices() const override;
    [[nodiscard]] Subscription whenOutputDevicesChange(Listener listener) override;
    [[nodiscard]] double sampleRate(OutputDeviceID device) const override;
    [[nodiscard]] std::optional<std::string> defaultOutput() const override;
    [[nodiscard]] Subscription whenDefaultOutputChanges(Listener listener) override;
    bool setDefaultOutput(const OutputDevice& device) override;
    [[nodiscard]] HostTime hostTime() const override;
    void holdStreamsOf(const std::set<std::string>& bundleIDs) override;
    [[nodiscard]] std::expected<std::unique_ptr<ProcessTap>, TapError> createTap(
        const TapRequest& request, const AudioIOProcFactory& makeIOProc) override;

private:
    class Tap;
    struct Announcements;

    /// A process's identity never changes, and takes file accesses to find out: it is cached.
    struct Identity {
        ProcessID pid = -1;
        std::string bundleID;
    };

    const Identity& identityOf(const AudioWorld::Process& process);
    void forgetEnded(const AudioWorld& world);

    MainLoop& mainLoop_;
    Options options_;
    // Shared with posted notifications, which hold a weak reference.
    std::shared_ptr<Announcements> announcements_;
    std::map<AudioProcessID, Identity> identities_;
    DescriptorBudget descriptorBudget_;
    std::shared_ptr<GraphSession> session_;  // A stopped tap releases its streams in a later iteration.
};

}  // namespace fadeloom
