// SPDX-License-Identifier: MIT
// The audio system on PipeWire.
//
// Processes with audio streams are its processes, sinks its devices. A tap is a private node in the same graph cycle
// as application and device; see TapRouter.h for how the sound is taken and given back. If this program dies, the
// session manager puts every application back on its own device by itself.
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
        /// The bundle identifier of a process; the second argument is the application id that the server vouches
        /// for, when the client is sandboxed. Called on the main thread.
        std::function<std::string(ProcessID, const std::string& portalAppID)> bundleIdentifier{};
        /// The same on the graph thread, about a process that has just come.
        std::function<std::string(ProcessID, const std::string& portalAppID)> newBundleIdentifier{};
        /// The process of a sandboxed application, whose own pid means nothing outside; -1 when there is none.
        std::function<ProcessID(const std::string& portalAppID)> portalProcess{};
        /// What the user of the log should know: connection made and lost, streams that cannot be moved. Called on
        /// the main thread.
        std::function<void(SystemLog::Level, std::string)> report{};
        /// Which client of the server we are (`clientWord`), 0 for none: whoever destroys it gives every application
        /// back to its own device. Called on the graph thread.
        std::function<void(std::uint64_t client)> ownClient{};
    };

    /// Connects by itself, and keeps trying while no server is there.
    PipeWireAudioSystem(MainLoop& mainLoop, Options options);
    /// Gives every application back to its own device first; waits for that, for a second at most.
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

    /// Who a process is never changes, and takes files to find out: it is asked once.
    struct Identity {
        ProcessID pid = -1;
        std::string bundleID;
    };

    const Identity& identityOf(const AudioWorld::Process& process);
    void forgetEnded(const AudioWorld& world);

    MainLoop& mainLoop_;
    Options options_;
    std::shared_ptr<Announcements> announcements_;  // Shared with posted notifications, which hold it weakly.
    std::map<AudioProcessID, Identity> identities_;
    FilesOfTaps filesOfTaps_;
    std::shared_ptr<GraphSession> session_;  // A tap that is stopped lets go of its streams in a later turn.
};

}  // namespace fadeloom
