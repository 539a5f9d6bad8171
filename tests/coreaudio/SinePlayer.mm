// SPDX-License-Identifier: MIT
#include "tests/coreaudio/SinePlayer.h"

#include "platform/macos/HAL.h"

#include <cmath>
#include <iostream>
#include <memory>
#include <numbers>

namespace fadeloom::SinePlayer {
namespace {

constexpr double frequency = 441;

/// The same value on all channels of a frame.
void fill(AudioBufferList* output, float amplitude, double step, double& phase)
{
    const ::AudioBuffer* const buffers = output->mBuffers;
    const double start = phase;
    for (UInt32 i = 0; i < output->mNumberBuffers; ++i) {
        const auto& buffer = buffers[i];
        auto* const samples = static_cast<float*>(buffer.mData);
        if (samples == nullptr || buffer.mNumberChannels == 0)
            continue;
        const UInt32 count = buffer.mDataByteSize / UInt32{sizeof(float)};
        for (UInt32 sample = 0; sample < count; ++sample)
            samples[sample] =
                amplitude * static_cast<float>(std::sin(start + step * (sample / buffer.mNumberChannels)));
        phase = start + step * (count / buffer.mNumberChannels);
    }
    phase = std::fmod(phase, 2 * std::numbers::pi);
}

}  // namespace

int play(float amplitude)
{
    const auto device = HAL::value<AudioObjectID>(
        kAudioObjectSystemObject, HAL::address(kAudioHardwarePropertyDefaultOutputDevice));
    const auto rate =
        HAL::value<double>(device.value_or(0), HAL::address(kAudioDevicePropertyNominalSampleRate));
    if (!device || !rate || *rate <= 0) {
        std::cerr << "no device to play on\n";
        return 1;
    }
    sigset_t signals;
    sigemptyset(&signals);
    for (const int each : {pauseSignal, resumeSignal, SIGTERM})
        sigaddset(&signals, each);
    sigprocmask(SIG_BLOCK, &signals, nullptr);

    const double step = 2 * std::numbers::pi * frequency / *rate;
    const auto phase = std::make_shared<double>(0);
    AudioDeviceIOProcID proc = nullptr;
    AudioDeviceCreateIOProcIDWithBlock(&proc, *device, nullptr,
        ^(const AudioTimeStamp*, const AudioBufferList*, const AudioTimeStamp*, AudioBufferList* output,
            const AudioTimeStamp*) { fill(output, amplitude, step, *phase); });
    AudioDeviceStart(*device, proc);
    for (int signal = 0; signal != SIGTERM;) {
        sigwait(&signals, &signal);
        if (signal == resumeSignal)
            AudioDeviceStart(*device, proc);
        else
            AudioDeviceStop(*device, proc);
    }
    AudioDeviceDestroyIOProcID(*device, proc);
    return 0;
}

}  // namespace fadeloom::SinePlayer
