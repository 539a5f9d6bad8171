// SPDX-License-Identifier: MIT
// The outside of a simulated audio system: plug devices, play in processes, run cycles.
//
// The program's view of the same system, with calls and faults, is `SimulatedAudioSystem`.
#pragma once

#include "base/Observers.h"
#include "platform/MainLoop.h"
#include "platform/simulated/SimulatedAudioCycle.h"
#include "platform/simulated/SimulatedAudioState.h"
#include "platform/simulated/SimulatedClock.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

namespace fadeloom {

/// Observers of one kind of change, called in a later iteration of the main loop, once for all changes until then.
class SimulatedAnnouncement {
public:
    explicit SimulatedAnnouncement(MainLoop& mainLoop)
        : mainLoop_(mainLoop)
    {
    }

    /// `callback` is called for changes after this call.
    [[nodiscard]] Subscription add(Observers::Callback callback);
    void post();
    /// Changes are no longer announced, like on a system that refuses listeners.
    void silence() { isSilent_ = true; }

private:
    struct State {
        Observers observers;
        int changes = 0;
        bool isPosted = false;
    };

    MainLoop& mainLoop_;
    std::shared_ptr<State> state_ = std::make_shared<State>();  // Shared with posted tasks.
    bool isSilent_ = false;
};

enum class UsesMic { no, yes };

/// Thread: main.
class SimulatedAudioWorld {
public:
    SimulatedAudioWorld(SimulatedClock& clock, MainLoop& mainLoop);

    /// Connects a device. The first one with outputs becomes the default output.
    OutputDeviceID plug(const SimulatedDeviceTraits& traits);
    /// Removes a device by its unique id; the first remaining one becomes the default output. Taps on it capture
    /// nothing any more.
    void unplug(const std::string& uid);
    /// `rate`: hertz.
    void changeRate(const std::string& uid, double rate);
    /// Empty for no default output at all.
    void setDefaultOutput(const std::string& uid);

    /// A process opens audio, and appears.
    AudioProcessID openAudio(ProcessID pid, const std::string& bundleID);
    void closeAudio(AudioProcessID process);
    void startPlaying(AudioProcessID process, SimulatedSignal signal);
    void stopPlaying(AudioProcessID process);
    /// The same audio on each of these devices, which it has chosen itself; empty for the default output.
    void chooseOutputs(AudioProcessID process, std::vector<std::string> uids);
    void setOutOfReach(AudioProcessID process, std::optional<OutOfReach> reason);
    void setUsingMic(AudioProcessID process, UsesMic usesMic);
    /// The first audio process with this pid; 0 if there is none.
    [[nodiscard]] AudioProcessID audioProcessOf(ProcessID pid) const;

    /// Runs one IO cycle of `frames` frames on all devices.
    void runCycle(std::uint32_t frames);
    /// The length of the cycles that run automatically while the clock is advanced and something plays or is captured;
    /// 0 for none, to advance days quickly. Initially 10 ms.
    void setCycleInterval(std::chrono::milliseconds interval) { cycleInterval_ = interval; }
    /// A device's input in the last cycle; empty if it had none.
    [[nodiscard]] HeardAudio heard(const std::string& uid) const;

    [[nodiscard]] HostTime hostTime() const { return clock_.now(); }
    [[nodiscard]] const SimulatedAudioState& state() const { return state_; }
    [[nodiscard]] SimulatedAudioState& state() { return state_; }
    void setDefaultOutput(OutputDeviceID device);
    /// Ensures that cycles run while there is anything to do.
    void scheduleCycles();

    SimulatedAnnouncement processesChanged;
    SimulatedAnnouncement outputDevicesChanged;
    SimulatedAnnouncement defaultOutputChanged;

private:
    [[nodiscard]] bool isActive() const;

    SimulatedClock& clock_;
    SimulatedAudioState state_;
    HeardByDevice heard_;
    std::chrono::milliseconds cycleInterval_{10};
    bool isCycleScheduled_ = false;
};

}  // namespace fadeloom
