// SPDX-License-Identifier: MIT
// The audio hardware layer on PipeWire.
//
// Processes with audio streams are its processes, sinks its devices. A process tap with its aggregate device becomes a
// private node in the same graph cycle as application and device once its IO procedure is started; see TapRouter.h
// for how the sound is taken and given back. If this program dies, the session manager puts every application back
// on its own device by itself.
#pragma once

#include "platform/AudioHardware.h"
#include "platform/SystemLog.h"
#include "platform/Workspace.h"
#include "platform/pipewire/AudioWorld.h"

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace fadeloom {

class GraphSession;
class MainLoop;
class PropertyListeners;

class PipeWireHardware final : public AudioHardware {
public:
    struct Options {
        /// The bundle identifier of a process; the second argument is the application id that the server vouches
        /// for, when the client is sandboxed. Called on the main thread.
        std::function<std::string(ProcessID, const std::string& portalAppID)> bundleIdentifier;
        /// The process of a sandboxed application, whose own pid means nothing outside; -1 when there is none.
        std::function<ProcessID(const std::string& portalAppID)> portalProcess;
        /// What the user of the log should know: connection made and lost, streams that cannot be moved. Called on
        /// the main thread.
        std::function<void(SystemLog::Level, std::string)> report;
    };

    /// Connects by itself, and keeps trying while no server is there.
    PipeWireHardware(MainLoop& mainLoop, Options options);
    /// Gives every application back to its own device first; waits for that, for a second at most.
    ~PipeWireHardware() override;

    [[nodiscard]] AudioResult<std::size_t> propertySize(
        AudioObjectID object, const AudioObjectPropertyAddress& address) const override;
    [[nodiscard]] AudioResult<std::size_t> readProperty(AudioObjectID object,
        const AudioObjectPropertyAddress& address, std::span<std::byte> value) const override;
    [[nodiscard]] AudioStatus writeProperty(AudioObjectID object, const AudioObjectPropertyAddress& address,
        std::span<const std::byte> value) override;
    [[nodiscard]] AudioResult<std::optional<std::string>> readText(
        AudioObjectID object, const AudioObjectPropertyAddress& address) const override;
    [[nodiscard]] AudioResult<Subscription> listen(
        AudioObjectID object, const AudioObjectPropertyAddress& address, Listener listener) override;

    [[nodiscard]] AudioResult<AudioObjectID> createProcessTap(const TapDescription& description) override;
    [[nodiscard]] AudioStatus describeProcessTap(
        AudioObjectID tap, const TapDescription& description) override;
    AudioStatus destroyProcessTap(AudioObjectID tap) override;
    [[nodiscard]] AudioResult<AudioObjectID> createAggregateDevice(
        const AggregateDescription& description) override;
    AudioStatus destroyAggregateDevice(AudioObjectID device) override;
    [[nodiscard]] AudioResult<AudioDeviceIOProcID> createIOProc(
        AudioObjectID device, AudioIOProc& proc) override;
    AudioStatus destroyIOProc(AudioObjectID device, AudioDeviceIOProcID proc) override;
    [[nodiscard]] AudioStatus start(AudioObjectID device, AudioDeviceIOProcID proc) override;
    AudioStatus stop(AudioObjectID device, AudioDeviceIOProcID proc) override;

private:
    struct Aggregate;
    struct Proc;

    [[nodiscard]] AudioResult<std::vector<std::byte>> valueOf(
        AudioObjectID object, const AudioObjectPropertyAddress& address) const;
    [[nodiscard]] AudioResult<std::vector<std::byte>> systemValue(AudioObjectPropertySelector selector) const;
    [[nodiscard]] AudioResult<std::vector<std::byte>> deviceValue(
        const AudioWorld::Device& device, const AudioObjectPropertyAddress& address) const;
    [[nodiscard]] AudioResult<std::vector<std::byte>> aggregateValue(
        const Aggregate& aggregate, const AudioObjectPropertyAddress& address) const;
    [[nodiscard]] AudioResult<std::vector<std::byte>> processValue(
        const AudioWorld::Process& process, AudioObjectPropertySelector selector) const;
    [[nodiscard]] ProcessID pidOf(const AudioWorld::Process& process) const;
    [[nodiscard]] double rateOf(const Aggregate& aggregate) const;
    [[nodiscard]] const AudioObjectID* tapWithUUID(const std::string& uuid) const;
    [[nodiscard]] std::set<AudioObjectID> processesOf(const Aggregate& aggregate) const;
    [[nodiscard]] Proc* procOf(AudioObjectID device, AudioDeviceIOProcID proc) const;

    MainLoop& mainLoop_;
    Options options_;
    AudioObjectIDs ids_;
    std::shared_ptr<PropertyListeners> listeners_;  // Shared with posted notifications, which hold it weakly.
    std::map<AudioObjectID, TapDescription> taps_;
    std::map<AudioObjectID, std::unique_ptr<Aggregate>> aggregates_;
    std::unique_ptr<GraphSession> session_;
};

}  // namespace fadeloom
