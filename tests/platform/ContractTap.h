// SPDX-License-Identifier: MIT
// A process tap with its aggregate device and an IO procedure that listens, for the contract of the audio hardware.
#pragma once

#include "platform/AudioHardware.h"
#include "platform/AudioStream.h"

#include <atomic>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

namespace fadeloom {

/// Measures what the tap delivers and leaves the device silent. Readable from any thread.
class ListeningProc final : public AudioIOProc {
public:
    void render(AudioBuffers input, AudioBuffers output) noexcept override
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

/// Builds the three objects in their order and takes them down in the reverse one. Ids are 0 after a failure.
class ContractTap {
public:
    ContractTap(AudioHardware& hardware, std::vector<AudioObjectID> processes, const std::string& outputUID)
        : hardware_(hardware)
    {
        static std::atomic<int> count = 0;
        const std::string number = std::to_string(++count);
        description = {std::move(processes),
            "00000000-0000-4000-8000-" + std::string(12 - number.size(), '0') + number, "Fadeloom Contract",
            true, TapMuteBehavior::mutedWhenTapped};
        tap = hardware.createProcessTap(description).value_or(kAudioObjectUnknown);
        aggregate = hardware
                        .createAggregateDevice({"Fadeloom Contract", "com.fadeloom.tap." + description.uuid,
                            outputUID, true, false, true, {outputUID}, {{description.uuid, true}}})
                        .value_or(kAudioObjectUnknown);
        procID = hardware.createIOProc(aggregate, proc).value_or(nullptr);
    }
    ContractTap(const ContractTap&) = delete;
    ContractTap& operator=(const ContractTap&) = delete;
    ~ContractTap() { tearDown(); }

    AudioStatus start() { return hardware_.start(aggregate, procID); }
    AudioStatus stop() { return hardware_.stop(aggregate, procID); }

    /// The statuses of stop, destroy procedure, destroy aggregate, destroy tap; empty the second time.
    std::vector<AudioStatus> tearDown()
    {
        if (isDown_)
            return {};
        isDown_ = true;
        std::vector<AudioStatus> statuses;
        statuses.push_back(stop());
        statuses.push_back(hardware_.destroyIOProc(aggregate, procID));
        statuses.push_back(hardware_.destroyAggregateDevice(aggregate));
        statuses.push_back(hardware_.destroyProcessTap(tap));
        return statuses;
    }

    TapDescription description;
    AudioObjectID tap = kAudioObjectUnknown;
    AudioObjectID aggregate = kAudioObjectUnknown;
    AudioDeviceIOProcID procID = nullptr;
    ListeningProc proc;

private:
    AudioHardware& hardware_;
    bool isDown_ = false;
};

}  // namespace fadeloom
