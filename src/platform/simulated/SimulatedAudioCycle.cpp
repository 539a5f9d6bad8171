// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedAudioCycle.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <span>

namespace fadeloom {

namespace {

using StereoBlock = std::vector<StereoFrame>;

void addPlayed(StereoBlock& mix, const SimulatedAudioProcess& process, double sampleRate)
{
    if (!process.isPlaying)
        return;
    for (std::size_t i = 0; i < mix.size(); ++i) {
        const StereoFrame frame = process.signal.at(process.position + i, sampleRate);
        mix[i].left += frame.left;
        mix[i].right += frame.right;
    }
}

/// Owns the buffers of one direction.
class CycleBuffers {
public:
    void add(std::uint32_t channels, std::uint32_t frames)
    {
        auto& samples = samples_.emplace_back(std::size_t{channels} * frames);
        const auto byteSize = static_cast<std::uint32_t>(samples.size() * sizeof(float));
        buffers_.push_back({channels, byteSize, samples.data()});
    }
    [[nodiscard]] std::span<float> last() { return samples_.back(); }
    [[nodiscard]] AudioBuffers buffers() const { return buffers_; }

private:
    std::vector<std::vector<float>> samples_;  // Reallocation moves the inner vectors, not their samples.
    std::vector<AudioBuffer> buffers_;
};

CycleBuffers captured(
    const SimulatedAudioState& state, const SimulatedTap& tap, std::uint32_t frames, double sampleRate)
{
    StereoBlock mix(frames);
    for (const AudioProcessID id : tap.processes) {
        const auto process = state.processes.find(id);
        if (process != state.processes.end()
            && (tap.scope == TapScope::everyStream || state.playsOn(process->second, tap.device)))
            addPlayed(mix, process->second, sampleRate);
    }
    CycleBuffers input;
    input.add(2, frames);
    for (std::size_t i = 0; i < mix.size(); ++i) {
        input.last()[2 * i] = mix[i].left;
        input.last()[2 * i + 1] = mix[i].right;
    }
    return input;
}

void addToHeard(HeardAudio& heard, AudioBuffers output)
{
    std::uint32_t firstChannel = 0;
    for (const AudioBuffer& buffer : output) {
        const auto* samples = static_cast<const float*>(buffer.data);
        for (std::uint32_t frame = 0; samples != nullptr && frame < heard.frames; ++frame)
            for (std::uint32_t channel = 0; channel < buffer.channels; ++channel)
                heard.samples[std::size_t{frame} * heard.channels + firstChannel + channel] +=
                    samples[std::size_t{frame} * buffer.channels + channel];
        firstChannel += buffer.channels;
    }
}

void runTap(const SimulatedAudioState& state, const SimulatedTap& tap, const SimulatedDeviceTraits& device,
    HeardAudio& heard)
{
    const CycleBuffers input = captured(state, tap, heard.frames, device.sampleRate);
    CycleBuffers output;
    for (const std::uint32_t channels : device.outputStreams)
        output.add(channels, heard.frames);
    tap.proc->render({.clock = tap.device, .frame = device.framesRun, .host = state.hostTime},
        input.buffers(), output.buffers());
    addToHeard(heard, output.buffers());
}

void addDirectSound(const SimulatedAudioState& state, OutputDeviceID deviceID, HeardAudio& heard)
{
    const SimulatedDeviceTraits& device = state.devices.at(deviceID);
    StereoBlock mix(heard.frames);
    for (const auto& [id, process] : state.processes)
        if (state.playsOn(process, deviceID) && !state.isCaptured(id, deviceID))
            addPlayed(mix, process, device.sampleRate);
    const auto [left, right] = device.stereoPair;
    for (std::size_t i = 0; i < mix.size(); ++i) {
        float* const frame = &heard.samples[i * heard.channels];
        if (left == right)
            mix[i].left = mix[i].right = (mix[i].left + mix[i].right) / 2;
        if (left >= 1 && left <= heard.channels)
            frame[left - 1] += mix[i].left;
        if (right >= 1 && right <= heard.channels && right != left)
            frame[right - 1] += mix[i].right;
    }
}

}  // namespace

float HeardAudio::at(std::uint32_t frame, std::uint32_t channel) const
{
    const bool isInside = frame < frames && channel >= 1 && channel <= channels;
    return isInside ? samples[std::size_t{frame} * channels + channel - 1] : 0;
}

float HeardAudio::peak(std::uint32_t channel) const
{
    float peak = 0;
    for (std::uint32_t frame = 0; frame < frames; ++frame)
        peak = std::max(peak, std::abs(at(frame, channel)));
    return peak;
}

bool HeardAudio::isSilent() const
{
    return std::ranges::all_of(samples, [](float sample) { return sample == 0; });
}

HeardByDevice runSimulatedCycle(SimulatedAudioState& state, std::uint32_t frames)
{
    HeardByDevice heardByDevice;
    for (auto& [id, device] : state.devices) {
        const auto channels =
            std::accumulate(device.outputStreams.begin(), device.outputStreams.end(), std::uint32_t{0});
        if (channels == 0)
            continue;
        HeardAudio heard{channels, frames, std::vector<float>(std::size_t{channels} * frames)};
        addDirectSound(state, id, heard);
        for (const auto& [tapID, tap] : state.taps)
            if (tap.device == id)
                runTap(state, tap, device, heard);
        device.framesRun += frames;
        heardByDevice.emplace(device.uid, std::move(heard));
    }
    for (auto& [id, process] : state.processes)
        if (process.isPlaying)
            process.position += frames;
    return heardByDevice;
}

}  // namespace fadeloom
