// SPDX-License-Identifier: MIT
// The world's side of a simulated audio system: devices come and go, processes play, cycles run.
//
// The program's side of the same system, with its calls and their faults, is `SimulatedAudioHardware`.
#pragma once

#include "platform/simulated/SimulatedAudioCycle.h"
#include "platform/simulated/SimulatedAudioObjects.h"
#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedListeners.h"

#include <chrono>
#include <cstdint>
#include <string>

namespace fadeloom {

/// Thread: main.
class SimulatedAudioSystem {
public:
    SimulatedAudioSystem(SimulatedClock& clock, MainLoop& mainLoop);

    /// Connects a device. The first one with outputs becomes the default output.
    AudioObjectID plug(const SimulatedDeviceTraits& traits);
    /// Takes a device away by its unique id; the default output falls to the first one left. Aggregates that play on
    /// it stay, without streams, and stop.
    void unplug(const std::string& uid);
    /// `rate` in hertz. Its aggregates follow.
    void changeRate(const std::string& uid, double rate);
    /// Empty for no default output at all.
    void setDefaultOutput(const std::string& uid);
    /// Makes every tap from now on have this format. Starts as 32-bit float, stereo, interleaved, 48 kHz.
    void setTapFormat(const AudioStreamBasicDescription& format) { tapFormat_ = format; }

    /// A process opens audio: its object appears.
    AudioObjectID openAudio(ProcessID pid, const std::string& bundleID);
    void closeAudio(AudioObjectID process);
    void startPlaying(AudioObjectID process, SimulatedSignal signal);
    void stopPlaying(AudioObjectID process);
    void setUsingMic(AudioObjectID process, bool isUsingMic);
    /// The first audio object of a process; `kAudioObjectUnknown` for none.
    [[nodiscard]] AudioObjectID audioObjectOf(ProcessID pid) const;

    /// Runs one IO cycle of `frames` frames on all devices.
    void runCycle(std::uint32_t frames);
    /// How long the cycles are that run by themselves while the clock is advanced and something plays or is read;
    /// 0 for none. Starts as 10 ms. Days are advanced faster without them.
    void setCycleInterval(std::chrono::milliseconds interval) { cycleInterval_ = interval; }
    /// What a device got in the last cycle; nothing for a device that had none.
    [[nodiscard]] HeardAudio heard(const std::string& uid) const;

    [[nodiscard]] const SimulatedAudioObjects& objects() const { return objects_; }
    [[nodiscard]] SimulatedAudioObjects& objects() { return objects_; }
    [[nodiscard]] SimulatedListeners& listeners() { return listeners_; }
    [[nodiscard]] const AudioStreamBasicDescription& tapFormat() const { return tapFormat_; }
    /// Tells the listeners of a property of global scope.
    void tell(AudioObjectID object, AudioObjectPropertySelector selector);
    /// Takes a device out of the world and tells so.
    void remove(AudioObjectID device);
    void setDefaultOutput(AudioObjectID device);
    void changeRate(AudioObjectID device, double rate);
    /// Sees to it that cycles run while there is anything to run.
    void keepCycling();
    std::vector<SimulatedStream> makeStreams(const std::vector<std::uint32_t>& channels);

private:
    void forget(const std::vector<SimulatedStream>& streams);
    [[nodiscard]] bool isActive() const;

    SimulatedClock& clock_;
    SimulatedListeners listeners_;
    SimulatedAudioObjects objects_;
    AudioStreamBasicDescription tapFormat_;
    HeardByDevice heard_;
    std::chrono::milliseconds cycleInterval_{10};
    bool isCycleScheduled_ = false;
};

}  // namespace fadeloom
