// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedAudioSystem.h"

#include "platform/WaveFormats.h"
#include "platform/simulated/SimulatedMainLoop.h"

#include <algorithm>
#include <utility>

namespace fadeloom {

namespace {

constexpr auto floatStereo = packedStereoFormat(48000, kAudioFormatFlagIsFloat, 32);

}  // namespace

SimulatedAudioSystem::SimulatedAudioSystem(SimulatedClock& clock, MainLoop& mainLoop)
    : clock_(clock)
    , listeners_(mainLoop)
    , tapFormat_(floatStereo)
{
}

void SimulatedAudioSystem::tell(AudioObjectID object, AudioObjectPropertySelector selector)
{
    listeners_.tell(object, {selector});
}

std::vector<SimulatedStream> SimulatedAudioSystem::makeStreams(const std::vector<std::uint32_t>& channels)
{
    std::vector<SimulatedStream> streams;
    for (const std::uint32_t count : channels) {
        streams.push_back({objects_.newID(), count});
        objects_.streams.insert(streams.back().id);
    }
    return streams;
}

AudioObjectID SimulatedAudioSystem::plug(const SimulatedDeviceTraits& traits)
{
    const AudioObjectID id = objects_.newID();
    SimulatedAudioDevice device{traits, makeStreams(traits.outputStreams), makeStreams(traits.inputStreams)};
    const bool hasOutput = !device.outputs.empty();
    objects_.devices.emplace(id, std::move(device));
    tell(kAudioObjectSystemObject, kAudioHardwarePropertyDevices);
    if (hasOutput && objects_.defaultOutput == kAudioObjectUnknown)
        setDefaultOutput(id);
    return id;
}

void SimulatedAudioSystem::unplug(const std::string& uid)
{
    const AudioObjectID gone = objects_.deviceWithUID(uid);
    if (gone == kAudioObjectUnknown)
        return;
    for (auto& [id, device] : objects_.devices) {
        if (device.clock != gone)
            continue;
        device.clock = kAudioObjectUnknown;
        forget(device.outputs);
        device.outputs.clear();
        for (SimulatedIOProc& proc : device.procs)
            proc.isRunning = false;
    }
    heard_.erase(uid);
    remove(gone);
    if (objects_.defaultOutput != gone)
        return;
    const auto next = std::ranges::find_if(objects_.devices,
        [](const auto& entry) { return !entry.second.aggregate && !entry.second.outputs.empty(); });
    setDefaultOutput(next == objects_.devices.end() ? kAudioObjectUnknown : next->first);
}

void SimulatedAudioSystem::forget(const std::vector<SimulatedStream>& streams)
{
    for (const SimulatedStream& stream : streams)
        objects_.streams.erase(stream.id);
}

void SimulatedAudioSystem::remove(AudioObjectID device)
{
    const auto found = objects_.devices.find(device);
    forget(found->second.outputs);
    forget(found->second.inputs);
    objects_.devices.erase(found);
    listeners_.forget(device);
    tell(kAudioObjectSystemObject, kAudioHardwarePropertyDevices);
}

void SimulatedAudioSystem::changeRate(const std::string& uid, double rate)
{
    changeRate(objects_.deviceWithUID(uid), rate);
}

void SimulatedAudioSystem::changeRate(AudioObjectID changed, double rate)
{
    for (auto& [id, device] : objects_.devices)
        if ((id == changed || device.clock == changed) && device.traits.sampleRate != rate) {
            device.traits.sampleRate = rate;
            tell(id, kAudioDevicePropertyNominalSampleRate);
        }
}

void SimulatedAudioSystem::setDefaultOutput(const std::string& uid)
{
    setDefaultOutput(objects_.deviceWithUID(uid));
}

void SimulatedAudioSystem::setDefaultOutput(AudioObjectID device)
{
    if (std::exchange(objects_.defaultOutput, device) != device)
        tell(kAudioObjectSystemObject, kAudioHardwarePropertyDefaultOutputDevice);
}

AudioObjectID SimulatedAudioSystem::openAudio(ProcessID pid, const std::string& bundleID)
{
    const AudioObjectID id = objects_.newID();
    objects_.processes.emplace(id, SimulatedAudioProcess{pid, bundleID});
    tell(kAudioObjectSystemObject, kAudioHardwarePropertyProcessObjectList);
    return id;
}

void SimulatedAudioSystem::closeAudio(AudioObjectID process)
{
    if (objects_.processes.erase(process) == 0)
        return;
    listeners_.forget(process);
    tell(kAudioObjectSystemObject, kAudioHardwarePropertyProcessObjectList);
}

void SimulatedAudioSystem::startPlaying(AudioObjectID id, SimulatedSignal signal)
{
    const auto found = objects_.processes.find(id);
    if (found == objects_.processes.end())
        return;
    found->second.signal = std::move(signal);
    found->second.position = 0;
    if (!std::exchange(found->second.isRunningOutput, true))
        tell(id, kAudioProcessPropertyIsRunningOutput);
    keepCycling();
}

void SimulatedAudioSystem::stopPlaying(AudioObjectID id)
{
    const auto found = objects_.processes.find(id);
    if (found != objects_.processes.end() && std::exchange(found->second.isRunningOutput, false))
        tell(id, kAudioProcessPropertyIsRunningOutput);
}

void SimulatedAudioSystem::setUsingMic(AudioObjectID id, bool isUsingMic)
{
    const auto found = objects_.processes.find(id);
    if (found != objects_.processes.end()
        && std::exchange(found->second.isRunningInput, isUsingMic) != isUsingMic)
        tell(id, kAudioProcessPropertyIsRunningInput);
}

AudioObjectID SimulatedAudioSystem::audioObjectOf(ProcessID pid) const
{
    const auto found = std::ranges::find_if(
        objects_.processes, [pid](const auto& entry) { return entry.second.pid == pid; });
    return found == objects_.processes.end() ? kAudioObjectUnknown : found->first;
}

void SimulatedAudioSystem::runCycle(std::uint32_t frames)
{
    const SimulatedMainLoop::OtherThread ioThread;
    heard_ = runSimulatedCycle(objects_, frames);
}

HeardAudio SimulatedAudioSystem::heard(const std::string& uid) const
{
    const auto found = heard_.find(uid);
    return found == heard_.end() ? HeardAudio{} : found->second;
}

bool SimulatedAudioSystem::isActive() const
{
    return std::ranges::any_of(objects_.devices, [](const auto& entry) { return entry.second.isRunning(); })
        || std::ranges::any_of(
            objects_.processes, [](const auto& entry) { return entry.second.isRunningOutput; });
}

void SimulatedAudioSystem::keepCycling()
{
    if (isCycleScheduled_ || cycleInterval_ <= std::chrono::milliseconds{0} || !isActive())
        return;
    isCycleScheduled_ = true;
    clock_.schedule(cycleInterval_, [this] {
        isCycleScheduled_ = false;
        const auto device = objects_.devices.find(objects_.defaultOutput);
        const double rate = device == objects_.devices.end() ? 48000 : device->second.traits.sampleRate;
        const auto interval = std::chrono::duration<double>{cycleInterval_};
        if (isActive() && interval.count() > 0)
            runCycle(static_cast<std::uint32_t>(rate * interval.count()));
        keepCycling();
    });
}

}  // namespace fadeloom
