// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedAudioCycle.h"

#include <algorithm>
#include <cmath>

namespace fadeloom {

namespace {

using StereoBlock = std::vector<StereoFrame>;

void addPlayed(StereoBlock& mix, const SimulatedAudioProcess& process, double sampleRate)
{
    if (!process.isRunningOutput)
        return;
    for (std::size_t i = 0; i < mix.size(); ++i) {
        const StereoFrame frame = process.signal.at(process.position + i, sampleRate);
        mix[i].left += frame.left;
        mix[i].right += frame.right;
    }
}

StereoBlock tapped(
    const SimulatedAudioObjects& objects, const SimulatedTap& tap, std::uint32_t frames, double sampleRate)
{
    StereoBlock mix(frames);
    for (const AudioObjectID id : tap.description.processes)
        if (const auto process = objects.processes.find(id); process != objects.processes.end())
            addPlayed(mix, process->second, sampleRate);
    return mix;
}

/// The memory behind the buffers of one direction.
class CycleBuffers {
public:
    void add(std::uint32_t channels, std::uint32_t frames, bool isUsed)
    {
        auto& samples = samples_.emplace_back(std::size_t{channels} * frames);
        const auto byteSize = static_cast<std::uint32_t>(samples.size() * sizeof(float));
        buffers_.push_back({channels, byteSize, isUsed ? samples.data() : nullptr});
    }
    [[nodiscard]] std::span<float> last() { return samples_.back(); }
    [[nodiscard]] AudioBuffers buffers() const { return buffers_; }

private:
    std::vector<std::vector<float>> samples_;  // Growing moves the inner vectors, not their samples.
    std::vector<AudioBuffer> buffers_;
};

void addTapStream(
    CycleBuffers& input, const AudioStreamBasicDescription& format, const StereoBlock& mix, bool isUsed)
{
    const auto frames = static_cast<std::uint32_t>(mix.size());
    const std::uint32_t channels = format.channelsPerFrame;
    const auto sample = [&](std::uint32_t frame, std::uint32_t channel) {
        if (channels == 1)
            return (mix[frame].left + mix[frame].right) / 2;
        return channel == 0 ? mix[frame].left : channel == 1 ? mix[frame].right : 0.0F;
    };
    if ((format.formatFlags & kAudioFormatFlagIsNonInterleaved) != 0) {
        for (std::uint32_t channel = 0; channel < channels; ++channel) {
            input.add(1, frames, isUsed);
            for (std::uint32_t frame = 0; frame < frames; ++frame)
                input.last()[frame] = sample(frame, channel);
        }
        return;
    }
    input.add(channels, frames, isUsed);
    for (std::uint32_t frame = 0; frame < frames; ++frame)
        for (std::uint32_t channel = 0; channel < channels; ++channel)
            input.last()[std::size_t{frame} * channels + channel] = sample(frame, channel);
}

CycleBuffers inputOf(const SimulatedAudioObjects& objects, const SimulatedAudioDevice& device,
    const SimulatedIOProc& proc, std::uint32_t frames)
{
    CycleBuffers input;
    for (std::size_t i = 0; i < device.inputs.size(); ++i) {
        const SimulatedStream& stream = device.inputs[i];
        const bool isUsed = proc.inputUsage[i] != 0;
        if (const auto tap = objects.taps.find(stream.tap); tap != objects.taps.end())
            addTapStream(input, tap->second.format,
                tapped(objects, tap->second, frames, device.traits.sampleRate), isUsed);
        else
            input.add(stream.channels, frames, isUsed);
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

void runProcs(const SimulatedAudioObjects& objects, const SimulatedAudioDevice& device, HeardAudio& heard)
{
    for (const SimulatedIOProc& proc : device.procs) {
        if (!proc.isRunning)
            continue;
        const CycleBuffers input = inputOf(objects, device, proc, heard.frames);
        CycleBuffers output;
        for (std::size_t i = 0; i < device.outputs.size(); ++i)
            output.add(device.outputs[i].channels, heard.frames, proc.outputUsage[i] != 0);
        proc.proc->render(input.buffers(), output.buffers());
        addToHeard(heard, output.buffers());
    }
}

void addDirectSound(
    const SimulatedAudioObjects& objects, const SimulatedAudioDevice& device, HeardAudio& heard)
{
    StereoBlock mix(heard.frames);
    for (const auto& [id, process] : objects.processes)
        if (!objects.isSilenced(id))
            addPlayed(mix, process, device.traits.sampleRate);
    const auto [left, right] = device.traits.stereoPair.value_or(std::array<std::uint32_t, 2>{1, 2});
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

HeardByDevice runSimulatedCycle(SimulatedAudioObjects& objects, std::uint32_t frames)
{
    HeardByDevice heardByDevice;
    for (const auto& [id, device] : objects.devices) {
        if (device.aggregate || device.outputChannels() == 0)
            continue;
        const std::uint32_t channels = device.outputChannels();
        HeardAudio heard{channels, frames, std::vector<float>(std::size_t{channels} * frames)};
        if (id == objects.defaultOutput)
            addDirectSound(objects, device, heard);
        runProcs(objects, device, heard);
        for (const auto& [aggregateID, aggregate] : objects.devices)
            if (aggregate.aggregate && aggregate.clock == id)
                runProcs(objects, aggregate, heard);
        heardByDevice.emplace(device.traits.uid, std::move(heard));
    }
    for (auto& [id, process] : objects.processes)
        if (process.isRunningOutput)
            process.position += frames;
    return heardByDevice;
}

}  // namespace fadeloom
