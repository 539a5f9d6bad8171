// SPDX-License-Identifier: MIT
// A tap: captures the audio of some processes, and plays it through a procedure on one output device.
//
//      processes ──► process tap ──► IO procedure ──► output device
//
// While a tap runs, its processes are audible only through it. Everything happens within one IO cycle.
#pragma once

#include "base/RealTime.h"
#include "platform/AudioBuffers.h"
#include "platform/AudioProcess.h"
#include "platform/CycleTime.h"
#include "platform/OutputDevice.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace fadeloom {

/// The real-time callback of each IO cycle.
class AudioIOProc {
public:
    virtual ~AudioIOProc() = default;

    /// Reads `input` and fills `output`; both are valid only during the call. Thread: the device's IO thread. Real
    /// time: no allocation or release, no blocking, no system call.
    virtual void render(
        const CycleTime& time, AudioBuffers input, AudioBuffers output) noexcept FADELOOM_NONBLOCKING = 0;
};

/// The buffer layout of a tap's cycles.
struct TapFormat {
    double sampleRate = 48000;  // Hertz.
    StereoChannels output{};  // The device's stereo channels.
    // The last buffers of the input are the tap's; the preceding ones are the device's own.
    std::size_t tapBufferCount = 1;
    bool isTapInterleaved = true;  // One buffer of two channels, or one buffer per channel.
};

/// Creates a tap's procedure once the format is known. Thread: main.
using AudioIOProcFactory = std::function<std::shared_ptr<AudioIOProc>(const TapFormat&)>;

/// Which streams of its processes a tap captures.
enum class TapScope {
    everyStream,  // Wherever it would play without us.
    streamsOfOutput,  // Those that would play on the tap's output without us.
};

struct TapRequest {
    std::vector<AudioProcessID> processes;
    OutputDevice output;
    TapScope scope = TapScope::everyStream;  // Has no effect on systems without per-stream devices.
    std::string name;  // Visible in the audio system's own tools.
};

/// Captures from construction to destruction. The system shares ownership of the procedure until no cycle can reach it.
/// Thread: main.
class ProcessTap {
public:
    virtual ~ProcessTap() = default;

    /// Hertz: the rate at which the procedure runs; 0 once the system has ended the tap, which must then be replaced.
    [[nodiscard]] virtual double sampleRate() const = 0;
    /// How many of the output device's own inputs had to be disabled for this tap.
    [[nodiscard]] virtual int disabledInputs() const { return 0; }
    /// Changes the set of captured processes without a gap. Returns false if the old set is still in effect.
    [[nodiscard]] virtual bool setProcesses(const std::vector<AudioProcessID>& processes) = 0;
};

}  // namespace fadeloom
