// SPDX-License-Identifier: MIT
// What exists in a simulated audio system: plain records, by id.
#pragma once

#include "platform/ProcessTap.h"
#include "platform/simulated/SimulatedSignal.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace fadeloom {

/// What a device is like when it is plugged in.
struct SimulatedDeviceTraits {
    std::string uid;
    std::string name{};
    std::vector<std::uint32_t> outputStreams{2};  // Channels of each stream; none for a microphone.
    int inputStreams = 0;  // Which a tap on the device has to switch off.
    double sampleRate = 48000;
    StereoChannels stereoPair{};
};

struct SimulatedAudioProcess {
    ProcessID pid = -1;
    std::string bundleID{};  // Empty for none.
    bool isPlaying = false;
    bool isUsingMic = false;
    SimulatedSignal signal = SimulatedSignal::silence();
    std::uint64_t position = 0;  // Frames played since it last began.
};

struct SimulatedTap {
    std::vector<AudioProcessID> processes;
    OutputDeviceID device = 0;  // 0 once its device is unplugged: nothing is captured any more.
    std::shared_ptr<AudioIOProc> proc;
};

/// Everything there is. Ids count up and are never given twice.
struct SimulatedAudioState {
    [[nodiscard]] std::uint32_t newID() { return ++lastID; }
    /// 0 for none.
    [[nodiscard]] OutputDeviceID deviceWithUID(const std::string& uid) const;
    /// Whether the process is heard nowhere but through its taps at this moment.
    [[nodiscard]] bool isCaptured(AudioProcessID process) const;

    std::uint32_t lastID = 0;
    OutputDeviceID defaultOutput = 0;
    std::map<OutputDeviceID, SimulatedDeviceTraits> devices;
    std::map<AudioProcessID, SimulatedAudioProcess> processes;
    std::map<std::uint32_t, SimulatedTap> taps;
};

}  // namespace fadeloom
