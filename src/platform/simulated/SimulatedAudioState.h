// SPDX-License-Identifier: MIT
// The objects of a simulated audio system: plain records, by id.
#pragma once

#include "platform/ProcessTap.h"
#include "platform/simulated/SimulatedSignal.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace fadeloom {

/// The properties of a device to plug in.
struct SimulatedDeviceTraits {
    std::string uid;
    std::string name{};
    std::vector<std::uint32_t> outputStreams{2};  // Channels of each stream; empty for a microphone.
    int inputStreams = 0;  // Inputs that a tap on the device must disable.
    double sampleRate = 48000;
    StereoChannels stereoPair{};
    std::int64_t framesRun = 0;
};

struct SimulatedAudioProcess {
    ProcessID pid = -1;
    std::string bundleID{};  // Empty if it has none.
    bool isPlaying = false;
    bool isUsingMic = false;
    // The devices that it has chosen itself; empty for the default output.
    std::vector<std::string> chosenOutputs{};
    std::optional<OutOfReach> outOfReach{};
    SimulatedSignal signal = SimulatedSignal::silence();
    std::uint64_t position = 0;  // Frames played since it last started.
};

struct SimulatedTap {
    std::vector<AudioProcessID> processes;
    TapScope scope = TapScope::everyStream;
    OutputDeviceID device = 0;  // 0 once its device is unplugged: nothing is captured any more.
    std::shared_ptr<AudioIOProc> proc;
};

/// The complete state. Ids increase and are never reused.
struct SimulatedAudioState {
    [[nodiscard]] std::uint32_t newID() { return ++lastID; }
    /// 0 if there is none.
    [[nodiscard]] OutputDeviceID deviceWithUID(const std::string& uid) const;
    /// Whether the process plays on the device without us.
    [[nodiscard]] bool playsOn(const SimulatedAudioProcess& process, OutputDeviceID device) const;
    /// Whether a tap captures the process's output to the device.
    [[nodiscard]] bool isCaptured(AudioProcessID process, OutputDeviceID device) const;

    std::uint32_t lastID = 0;
    OutputDeviceID defaultOutput = 0;
    HostTime hostTime{};  // At the start of the current cycle.
    std::map<OutputDeviceID, SimulatedDeviceTraits> devices;
    std::map<AudioProcessID, SimulatedAudioProcess> processes;
    std::map<std::uint32_t, SimulatedTap> taps;
};

}  // namespace fadeloom
