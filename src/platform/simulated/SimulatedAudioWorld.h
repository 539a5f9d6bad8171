// SPDX-License-Identifier: MIT
// The world's side of a simulated audio system: devices come and go, processes play, cycles run.
//
// The program's side of the same system, with its calls and their faults, is `SimulatedAudioSystem`.
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

/// Observers of one kind of change, called in a later turn of the main loop, once for all changes until then.
class SimulatedAnnouncement {
public:
    explicit SimulatedAnnouncement(MainLoop& mainLoop)
        : mainLoop_(mainLoop)
    {
    }

    /// `callback` hears of changes after this call.
    [[nodiscard]] Subscription add(Observers::Callback callback);
    void post();
    /// From now on changes are not announced, as by a system that refuses to tell.
    void silence() { isSilent_ = true; }

private:
    struct State {
        Observers observers;
        int changes = 0;
        bool isPosted = false;
    };

    MainLoop& mainLoop_;
    std::shared_ptr<State> state_ = std::make_shared<State>();  // Shared with what is posted.
    bool isSilent_ = false;
};

/// Thread: main.
class SimulatedAudioWorld {
public:
    SimulatedAudioWorld(SimulatedClock& clock, MainLoop& mainLoop);

    /// Connects a device. The first one with outputs becomes the default output.
    OutputDeviceID plug(const SimulatedDeviceTraits& traits);
    /// Takes a device away by its unique id; the default output falls to the first one left. Taps on it capture
    /// nothing any more.
    void unplug(const std::string& uid);
    /// `rate` in hertz.
    void changeRate(const std::string& uid, double rate);
    /// Empty for no default output at all.
    void setDefaultOutput(const std::string& uid);

    /// A process opens audio: it appears.
    AudioProcessID openAudio(ProcessID pid, const std::string& bundleID);
    void closeAudio(AudioProcessID process);
    void startPlaying(AudioProcessID process, SimulatedSignal signal);
    void stopPlaying(AudioProcessID process);
    /// It plays on these devices by its own choice, the same on each; empty for the default output.
    void chooseOutputs(AudioProcessID process, std::vector<std::string> uids);
    void setOutOfReach(AudioProcessID process, std::optional<OutOfReach> reason);
    void setUsingMic(AudioProcessID process, bool isUsingMic);
    /// The first audio process with this pid; 0 for none.
    [[nodiscard]] AudioProcessID audioProcessOf(ProcessID pid) const;

    /// Runs one IO cycle of `frames` frames on all devices.
    void runCycle(std::uint32_t frames);
    /// How long the cycles are that run by themselves while the clock is advanced and something plays or is captured;
    /// 0 for none. Starts as 10 ms. Days are advanced faster without them.
    void setCycleInterval(std::chrono::milliseconds interval) { cycleInterval_ = interval; }
    /// What a device got in the last cycle; nothing for a device that had none.
    [[nodiscard]] HeardAudio heard(const std::string& uid) const;

    [[nodiscard]] HostTime hostTime() const { return clock_.now(); }
    [[nodiscard]] const SimulatedAudioState& state() const { return state_; }
    [[nodiscard]] SimulatedAudioState& state() { return state_; }
    void setDefaultOutput(OutputDeviceID device);
    /// Sees to it that cycles run while there is anything to run.
    void keepCycling();

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
