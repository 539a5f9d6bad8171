// SPDX-License-Identifier: MIT
// The audio system of the machine: who plays, where sound can go, and how to get in between.
//
// Not here: decisions (which processes to tap, which device to choose), and any promise that what was set is in
// effect at once: the announcement says when.
#pragma once

#include "base/Subscription.h"
#include "platform/AudioProcess.h"
#include "platform/CycleTime.h"
#include "platform/OutputDevice.h"
#include "platform/ProcessTap.h"
#include "platform/TapError.h"

#include <expected>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace fadeloom {

/// Thread: main, for every call and every listener. Changes in quick succession may be announced as one.
class AudioSystem {
public:
    using Listener = std::function<void()>;

    virtual ~AudioSystem() = default;

    /// Every audio process, in the system's order; empty when that cannot be found out. Without `ReadMic::yes` none is
    /// said to use the microphone.
    [[nodiscard]] virtual std::vector<AudioProcess> processes(ReadMic readMic) = 0;
    /// When a process comes or goes, starts or stops playing, starts or stops using the microphone.
    [[nodiscard]] virtual Subscription whenProcessesChange(Listener listener) = 0;

    /// The devices to offer, in the system's order; what we make ourselves is not among them.
    [[nodiscard]] virtual std::vector<OutputDevice> outputDevices() const = 0;
    /// When a device comes or goes, changes its channels, or (where the system tells) its sample rate.
    [[nodiscard]] virtual Subscription whenOutputDevicesChange(Listener listener) = 0;
    /// Hertz; 0 when the device is gone or does not say.
    [[nodiscard]] virtual double sampleRate(OutputDeviceID device) const = 0;

    /// Unique id of the system's default output; absent when there is none.
    [[nodiscard]] virtual std::optional<std::string> defaultOutput() const = 0;
    [[nodiscard]] virtual Subscription whenDefaultOutputChanges(Listener listener) = 0;
    /// Asks for another default output; false when the system refuses.
    virtual bool setDefaultOutput(const OutputDevice& device) = 0;

    /// The applications whose sound is not to be heard before their tap has it, by bundle identifier, instead of those
    /// named before. Where it can, the system has their new streams wait for the tap, for a second at most.
    virtual void holdStreamsOf(const std::set<std::string>& /*bundleIDs*/) { }

    /// The present moment on the clock of the cycles.
    [[nodiscard]] virtual HostTime hostTime() const = 0;

    /// Starts to capture; after an error nothing of it is left, and the processes are heard as before. Ends before this
    /// system does.
    [[nodiscard]] virtual std::expected<std::unique_ptr<ProcessTap>, TapError> createTap(
        const TapRequest& request, const AudioIOProcFactory& makeIOProc) = 0;
};

}  // namespace fadeloom
