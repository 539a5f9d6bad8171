// SPDX-License-Identifier: MIT
// What exists in a simulated audio system: plain records, by object id.
#pragma once

#include "platform/AudioHardware.h"
#include "platform/Workspace.h"
#include "platform/simulated/SimulatedSignal.h"

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace fadeloom {

/// What a device is like when it is plugged in.
struct SimulatedDeviceTraits {
    std::string uid;
    std::optional<std::string> name{};  // Absent for a device that reports none.
    std::vector<std::uint32_t> outputStreams{2};  // Channels of each stream; none for a microphone.
    std::vector<std::uint32_t> inputStreams{};
    double sampleRate = 48000;
    /// The channels preferred for stereo, counted from 1; absent for a device that does not say.
    std::optional<std::array<std::uint32_t, 2>> stereoPair = std::array<std::uint32_t, 2>{1, 2};
};

struct SimulatedStream {
    AudioObjectID id = kAudioObjectUnknown;
    std::uint32_t channels = 0;
    AudioObjectID tap = kAudioObjectUnknown;  // Of an aggregate's tap stream.
};

struct SimulatedIOProc {
    AudioDeviceIOProcID id = nullptr;
    AudioIOProc* proc = nullptr;
    bool isRunning = false;
    std::vector<std::uint32_t> inputUsage;  // 1 per stream in use.
    std::vector<std::uint32_t> outputUsage;
};

/// A real device, or an aggregate when it has a description.
struct SimulatedAudioDevice {
    SimulatedDeviceTraits traits;
    std::vector<SimulatedStream> outputs;
    std::vector<SimulatedStream> inputs;
    std::optional<AggregateDescription> aggregate{};
    AudioObjectID clock =
        kAudioObjectUnknown;  // Of an aggregate: its output device, unknown once that is unplugged.
    std::vector<SimulatedIOProc> procs{};

    [[nodiscard]] bool isRunning() const;
    [[nodiscard]] std::uint32_t outputChannels() const;
    [[nodiscard]] SimulatedIOProc* find(AudioDeviceIOProcID proc);
};

struct SimulatedAudioProcess {
    ProcessID pid = -1;
    std::string bundleID{};  // Empty for none.
    bool isRunningOutput = false;
    bool isRunningInput = false;
    SimulatedSignal signal = SimulatedSignal::silence();
    std::uint64_t position = 0;  // Frames played since it last began.
};

struct SimulatedTap {
    TapDescription description;
    AudioStreamBasicDescription format;
};

/// Everything there is. Ids count up from the system object's and are never given twice.
struct SimulatedAudioObjects {
    [[nodiscard]] AudioObjectID newID() { return nextID++; }
    [[nodiscard]] AudioObjectID deviceWithUID(const std::string& uid) const;
    [[nodiscard]] AudioObjectID tapWithUUID(const std::string& uuid) const;
    /// Whether the process is heard nowhere but through its taps at this moment.
    [[nodiscard]] bool isSilenced(AudioObjectID process) const;
    /// Whether a running IO procedure reads the tap.
    [[nodiscard]] bool isRead(AudioObjectID tap) const;
    [[nodiscard]] bool exists(AudioObjectID object) const;

    AudioObjectID nextID = kAudioObjectSystemObject + 1;
    AudioObjectID defaultOutput = kAudioObjectUnknown;
    std::map<AudioObjectID, SimulatedAudioDevice> devices;
    std::map<AudioObjectID, SimulatedAudioProcess> processes;
    std::map<AudioObjectID, SimulatedTap> taps;
    std::set<AudioObjectID> streams;
};

}  // namespace fadeloom
