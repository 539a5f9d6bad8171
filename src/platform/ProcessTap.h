// SPDX-License-Identifier: MIT
// The sound of some processes, captured and led through a procedure to one output device.
//
//      processes ──► process tap ──► IO procedure ──► output device
//
// While a tap runs, its processes are heard on no other way. All of it happens in one IO cycle.
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

/// What runs in each IO cycle.
class AudioIOProc {
public:
    virtual ~AudioIOProc() = default;

    /// Reads `input` and fills `output`; both live for this call only. Thread: the device's IO thread.
    /// Real time: no allocation or release, no waiting, no system call.
    virtual void render(
        const CycleTime& time, AudioBuffers input, AudioBuffers output) noexcept FADELOOM_NONBLOCKING = 0;
};

/// How the buffers of a tap's cycles are laid out.
struct TapFormat {
    double sampleRate = 48000;  // Hertz.
    StereoChannels output{};  // Where the device wants stereo.
    // The last buffers of the input are the tap's; those before are the device's own.
    std::size_t tapBufferCount = 1;
    bool isTapInterleaved = true;  // One buffer of two channels, or one buffer for each channel.
};

/// Makes the procedure of a tap, once the tap's format is known. Thread: main.
using AudioIOProcFactory = std::function<std::shared_ptr<AudioIOProc>(const TapFormat&)>;

/// Which streams of its processes a tap is for.
enum class TapScope {
    everyStream,  // Wherever it would play without us.
    streamsOfOutput,  // Those that would play on the tap's output without us.
};

struct TapRequest {
    std::vector<AudioProcessID> processes;
    OutputDevice output;
    TapScope scope = TapScope::everyStream;  // Without meaning where apps have no choice of their own.
    std::string name;  // For people who look at the audio system with tools of their own.
};

/// Captures from its creation until its destruction. The system shares the procedure until no cycle can reach it.
/// Thread: main.
class ProcessTap {
public:
    virtual ~ProcessTap() = default;

    /// Hertz: the rate at which the procedure runs; 0 once the system has ended that, and a new tap is due.
    [[nodiscard]] virtual double sampleRate() const = 0;
    /// How many of the output device's own inputs had to be switched off for this tap.
    [[nodiscard]] virtual int disabledInputs() const { return 0; }
    /// Captures these processes from now on, without a gap. When it returns false the old ones still are.
    [[nodiscard]] virtual bool setProcesses(const std::vector<AudioProcessID>& processes) = 0;
};

}  // namespace fadeloom
