// SPDX-License-Identifier: MIT
#include "tests/macos/doubles/AudioWorld.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace doubles {

std::string characters(std::uint32_t code)
{
    return {static_cast<char>(code >> 24), static_cast<char>(code >> 16), static_cast<char>(code >> 8),
        static_cast<char>(code)};
}

AudioWorld& AudioWorld::current()
{
    static auto& made = *new AudioWorld;
    return made;
}

void AudioWorld::reset()
{
    const AudioObjectID last = lastID;
    *this = AudioWorld{};
    lastID = last;
    tapFormat = {48000, 'lpcm', 9, 8, 1, 8, 2, 32, 0};
    journal().clear();
}

AudioObjectID AudioWorld::plug(Device device)
{
    const AudioObjectID id = nextID();
    devices[id] = std::move(device);
    changed(kAudioObjectSystemObject, kAudioHardwarePropertyDevices);
    if (defaultOutput == kAudioObjectUnknown)
        defaultOutput = id;
    return id;
}

void AudioWorld::die(const std::string& uid)
{
    const AudioObjectID id = deviceOf(uid);
    devices.at(id).isAlive = false;
    changed(id, kAudioDevicePropertyDeviceIsAlive);
}

void AudioWorld::restartService()
{
    taps.clear();
    aggregates.clear();
    pending.clear();
    changed(kAudioObjectSystemObject, kAudioHardwarePropertyServiceRestarted);
    listeners.clear();
}

void AudioWorld::unplug(const std::string& uid)
{
    const AudioObjectID id = deviceOf(uid);
    changed(id, kAudioDevicePropertyDeviceIsAlive);
    devices.erase(id);
    changed(kAudioObjectSystemObject, kAudioHardwarePropertyDevices);
    if (defaultOutput == id) {
        defaultOutput = devices.empty() ? kAudioObjectUnknown : devices.begin()->first;
        changed(kAudioObjectSystemObject, kAudioHardwarePropertyDefaultOutputDevice);
    }
}

void AudioWorld::setDefaultOutput(const std::string& uid)
{
    defaultOutput = deviceOf(uid);
    changed(kAudioObjectSystemObject, kAudioHardwarePropertyDefaultOutputDevice);
}

AudioObjectID AudioWorld::addProcess(Process process)
{
    const AudioObjectID id = nextID();
    processes[id] = std::move(process);
    changed(kAudioObjectSystemObject, kAudioHardwarePropertyProcessObjectList);
    return id;
}

void AudioWorld::change(std::int32_t pid, const std::function<void(Process&)>& how)
{
    for (auto& [id, process] : processes) {
        if (process.pid != pid)
            continue;
        how(process);
        changed(id, kAudioProcessPropertyIsRunningOutput);
        changed(id, kAudioProcessPropertyIsRunningInput);
    }
}

void AudioWorld::endProcess(std::int32_t pid)
{
    std::erase_if(processes, [pid](const auto& each) { return each.second.pid == pid; });
    changed(kAudioObjectSystemObject, kAudioHardwarePropertyProcessObjectList);
}

void AudioWorld::settleProperties()
{
    for (auto taken = std::exchange(pending, {}); auto& change : taken)
        change();
}

void AudioWorld::changed(AudioObjectID object, AudioObjectPropertySelector selector)
{
    for (const Listener& listener : listeners) {
        if (listener.object != object || listener.address.mSelector != selector)
            continue;
        const auto block = listener.block;
        const auto address = listener.address;
        dispatch_async(listener.queue, ^{ block(1, &address); });
    }
}

OSStatus AudioWorld::begin(const std::string& call, AudioObjectID object)
{
    const std::string line = call + ' ' + kindOf(object);
    note(line);
    const auto failure = failures.extract(line);
    return failure.empty() ? kAudioHardwareNoError : failure.mapped();
}

AudioObjectID AudioWorld::deviceOf(const std::string& uid) const
{
    const auto found =
        std::ranges::find_if(devices, [&](const auto& each) { return each.second.uid == uid; });
    return found == devices.end() ? AudioObjectID{kAudioObjectUnknown} : found->first;
}

const Tap* AudioWorld::tapOf(const std::string& uid) const
{
    const auto found = std::ranges::find_if(taps, [&](const auto& each) { return each.second.uuid == uid; });
    return found == taps.end() ? nullptr : &found->second;
}

std::uint32_t AudioWorld::inputStreamsOf(const Aggregate& aggregate) const
{
    if (inputsOfAggregates)
        return *inputsOfAggregates;
    const auto device = devices.find(deviceOf(aggregate.master));
    const std::size_t own = device == devices.end() ? 0 : device->second.inputs.size();
    return static_cast<std::uint32_t>(own + (tapOf(aggregate.tapUID) == nullptr ? 0 : 1));
}

std::string AudioWorld::kindOf(AudioObjectID object) const
{
    if (object == kAudioObjectSystemObject)
        return "system";
    if (devices.contains(object))
        return "device";
    if (processes.contains(object))
        return "process";
    if (taps.contains(object))
        return "tap";
    return aggregates.contains(object) ? "aggregate" : "nothing";
}

void AudioWorld::runCycle()
{
    for (auto& [id, aggregate] : aggregates)
        for (auto& [procID, proc] : aggregate.procs)
            if (proc.isRunning)
                run(aggregate, proc);
    for (auto& [id, aggregate] : aggregates)
        aggregate.framesRun += framesInCycle;
    hostTime += std::chrono::nanoseconds(1'000'000'000LL * framesInCycle / 48000);
}

namespace {

/// A buffer list of any length, with its samples.
class Buffers {
public:
    void add(std::uint32_t channels, bool hasData)
    {
        samples_.emplace_back(hasData ? channels * AudioWorld::framesInCycle : 0);
        channels_.push_back(channels);
    }
    std::vector<float>& last() { return samples_.back(); }
    AudioBufferList* list()
    {
        bytes_.resize(offsetof(AudioBufferList, mBuffers) + samples_.size() * sizeof(AudioBuffer));
        auto* const list = reinterpret_cast<AudioBufferList*>(bytes_.data());
        list->mNumberBuffers = static_cast<UInt32>(samples_.size());
        auto* const buffers =
            reinterpret_cast<AudioBuffer*>(bytes_.data() + offsetof(AudioBufferList, mBuffers));
        for (std::size_t i = 0; i < samples_.size(); ++i)
            buffers[i] = {channels_[i], channels_[i] * AudioWorld::framesInCycle * UInt32{sizeof(float)},
                samples_[i].empty() ? nullptr : samples_[i].data()};
        return list;
    }

private:
    std::vector<std::vector<float>> samples_;
    std::vector<std::uint32_t> channels_;
    std::vector<std::byte> bytes_;
};

}  // namespace

void AudioWorld::run(Aggregate& aggregate, Proc& proc)
{
    const auto device = devices.find(deviceOf(aggregate.master));
    const Tap* const tap = tapOf(aggregate.tapUID);
    if (device == devices.end())
        return;

    Buffers input;
    for (std::size_t i = 0; i < device->second.inputs.size(); ++i)
        input.add(device->second.inputs[i], proc.inputIsOn.at(i) != 0);
    if (tap != nullptr) {
        const bool isInterleaved = (tapFormat.mFormatFlags & kAudioFormatFlagIsNonInterleaved) == 0;
        for (int buffer = 0; buffer < (isInterleaved ? 1 : 2); ++buffer) {
            const std::uint32_t channels = isInterleaved ? 2 : 1;
            input.add(channels, proc.inputIsOn.back() != 0);
            for (std::size_t i = 0; i < input.last().size(); ++i)
                for (const AudioObjectID id : tap->processes)
                    if (const auto found = processes.find(id);
                        found != processes.end() && found->second.isRunningOutput)
                        input.last()[i] += found->second.amplitude
                            * static_cast<float>(std::sin(
                                2 * std::numbers::pi * 441 / 48000 * static_cast<double>(i / channels)));
        }
    }
    Buffers output;
    for (const std::uint32_t channels : device->second.outputs)
        output.add(channels, true);
    AudioTimeStamp now{};
    now.mSampleTime = static_cast<double>(aggregate.framesRun);
    now.mHostTime = static_cast<UInt64>(hostTime.count()) * 3 / 125;
    now.mFlags = kAudioTimeStampSampleHostTimeValid;
    proc.block(&now, input.list(), &now, output.list(), &now);
}

}  // namespace doubles
