// SPDX-License-Identifier: MIT
// A process tap with a measuring procedure, for the contract of the audio system.
#pragma once

#include "platform/AudioSystem.h"

#include <atomic>
#include <cmath>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace fadeloom {

/// Measures the tap's output and leaves the device silent. Readable from any thread.
class ListeningProc final : public AudioIOProc {
public:
    void render(const CycleTime& /*time*/, AudioBuffers input, AudioBuffers output) noexcept override
    {
        inputBuffers = static_cast<std::uint32_t>(input.size());
        if (!input.empty()) {
            const AudioBuffer& last = input.back();
            const auto* samples = static_cast<const float*>(last.data);
            float peak = 0;
            for (std::uint32_t i = 0; samples != nullptr && i < last.byteSize / sizeof(float); ++i)
                peak = std::fmax(peak, std::fabs(samples[i]));
            inputChannelsOfLast = last.channels;
            inputFrames = last.channels == 0 ? 0 : last.byteSize / (last.channels * 4);
            lastPeak = peak;
        }
        std::uint32_t channels = 0;
        for (const AudioBuffer& buffer : output) {
            channels += buffer.channels;
            outputFrames = buffer.channels == 0 ? 0 : buffer.byteSize / (buffer.channels * 4);
            auto* samples = static_cast<float*>(buffer.data);
            for (std::uint32_t i = 0; samples != nullptr && i < buffer.byteSize / sizeof(float); ++i)
                samples[i] = 0;
        }
        outputChannels = channels;
        ++cycles;
    }

    std::atomic<int> cycles = 0;
    std::atomic<std::uint32_t> inputBuffers = 0;
    std::atomic<std::uint32_t> inputChannelsOfLast = 0;
    std::atomic<std::uint32_t> inputFrames = 0;
    std::atomic<std::uint32_t> outputChannels = 0;
    std::atomic<std::uint32_t> outputFrames = 0;
    std::atomic<float> lastPeak = 0;  // Of the last input buffer in the last cycle.
};

/// Captures from construction until `end`, unless the system refuses; `error` then gives the reason.
class ContractTap {
public:
    ContractTap(AudioSystem& audio, std::vector<AudioProcessID> processes, const OutputDevice& output)
    {
        auto made = audio.createTap({.processes = std::move(processes), .output = output, .name = "Contract"},
            [this](const TapFormat& chosen) {
                format = chosen;
                return proc;
            });
        if (made)
            tap_ = std::move(*made);
        else
            error = made.error();
    }

    [[nodiscard]] bool isRunning() const { return tap_ != nullptr; }
    ProcessTap& operator*() { return *tap_; }
    ProcessTap* operator->() { return tap_.get(); }
    void end() { tap_.reset(); }

    const std::shared_ptr<ListeningProc> proc = std::make_shared<ListeningProc>();
    std::optional<TapFormat> format;
    std::optional<TapError> error;

private:
    std::unique_ptr<ProcessTap> tap_;
};

}  // namespace fadeloom
