// SPDX-License-Identifier: MIT
// The machine's audio system: which processes play, output devices, and taps.
//
// Non-goals: decisions (which processes to tap, which device to use), and any guarantee that a change takes effect
// immediately: wait for the notification.
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

/// Thread: main, for all calls and listeners. Changes in quick succession may be coalesced into one notification.
class AudioSystem {
public:
    using Listener = std::function<void()>;

    virtual ~AudioSystem() = default;

    /// All audio processes, in the system's order; empty if they cannot be determined. Without `ReadMic::yes`, none is
    /// reported as using the microphone.
    [[nodiscard]] virtual std::vector<AudioProcess> processes(ReadMic readMic) = 0;
    /// When a process appears or disappears, starts or stops playing, starts or stops using the microphone.
    [[nodiscard]] virtual Subscription whenProcessesChange(Listener listener) = 0;

    /// The selectable devices, in the system's order, without any that we created.
    [[nodiscard]] virtual std::vector<OutputDevice> outputDevices() const = 0;
    /// When a device is added or removed, changes its channels, or (if the system reports it) its sample rate.
    [[nodiscard]] virtual Subscription whenOutputDevicesChange(Listener listener) = 0;
    /// Hertz; 0 if the device is gone or does not report it.
    [[nodiscard]] virtual double sampleRate(OutputDeviceID device) const = 0;

    /// Unique id of the system's default output; nullopt if there is none.
    [[nodiscard]] virtual std::optional<std::string> defaultOutput() const = 0;
    [[nodiscard]] virtual Subscription whenDefaultOutputChanges(Listener listener) = 0;
    /// Requests another default output; false if the system refuses.
    virtual bool setDefaultOutput(const OutputDevice& device) = 0;

    /// Replaces the set of applications, by bundle identifier, whose audio must not be audible before their tap has it.
    /// If the system supports it, their new streams wait for the tap, for a second at most.
    virtual void holdStreamsOf(const std::set<std::string>& /*bundleIDs*/) { }

    /// The current time on the clock of the cycles.
    [[nodiscard]] virtual HostTime hostTime() const = 0;

    /// Starts capturing; after an error no part of the tap is left, and the processes remain audible as before. The tap
    /// must be destroyed before this object.
    [[nodiscard]] virtual std::expected<std::unique_ptr<ProcessTap>, TapError> createTap(
        const TapRequest& request, const AudioIOProcFactory& makeIOProc) = 0;
};

}  // namespace fadeloom
