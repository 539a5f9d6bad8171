// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedAudioWorld.h"

#include "platform/simulated/SimulatedMainLoop.h"

#include <algorithm>
#include <utility>

namespace fadeloom {

Subscription SimulatedAnnouncement::add(Observers::Callback callback)
{
    return state_->observers.add(
        [state = std::weak_ptr(state_), seen = state_->changes, callback = std::move(callback)]() mutable {
            const auto alive = state.lock();
            if (alive && std::exchange(seen, alive->changes) != alive->changes)
                callback();
        });
}

void SimulatedAnnouncement::post()
{
    ++state_->changes;
    if (isSilent_ || std::exchange(state_->isPosted, true))
        return;
    mainLoop_.post([state = state_] {
        state->isPosted = false;
        state->observers.notify();
    });
}

SimulatedAudioWorld::SimulatedAudioWorld(SimulatedClock& clock, MainLoop& mainLoop)
    : processesChanged(mainLoop)
    , outputDevicesChanged(mainLoop)
    , defaultOutputChanged(mainLoop)
    , clock_(clock)
{
}

OutputDeviceID SimulatedAudioWorld::plug(const SimulatedDeviceTraits& traits)
{
    const OutputDeviceID id = state_.newID();
    state_.devices.emplace(id, traits);
    outputDevicesChanged.post();
    if (!traits.outputStreams.empty() && state_.defaultOutput == 0)
        setDefaultOutput(id);
    return id;
}

void SimulatedAudioWorld::unplug(const std::string& uid)
{
    const OutputDeviceID gone = state_.deviceWithUID(uid);
    if (gone == 0)
        return;
    for (auto& [id, tap] : state_.taps) {
        if (tap.device == gone)
            tap.device = 0;
    }
    heard_.erase(uid);
    state_.devices.erase(gone);
    outputDevicesChanged.post();
    if (state_.defaultOutput != gone)
        return;
    const auto next = std::ranges::find_if(
        state_.devices, [](const auto& entry) { return !entry.second.outputStreams.empty(); });
    setDefaultOutput(next == state_.devices.end() ? 0 : next->first);
}

void SimulatedAudioWorld::changeRate(const std::string& uid, double rate)
{
    const auto device = state_.devices.find(state_.deviceWithUID(uid));
    if (device != state_.devices.end() && std::exchange(device->second.sampleRate, rate) != rate)
        outputDevicesChanged.post();
}

void SimulatedAudioWorld::setDefaultOutput(const std::string& uid)
{
    setDefaultOutput(state_.deviceWithUID(uid));
}

void SimulatedAudioWorld::setDefaultOutput(OutputDeviceID device)
{
    if (std::exchange(state_.defaultOutput, device) != device)
        defaultOutputChanged.post();
}

AudioProcessID SimulatedAudioWorld::openAudio(ProcessID pid, const std::string& bundleID)
{
    const AudioProcessID id = state_.newID();
    state_.processes.emplace(id, SimulatedAudioProcess{pid, bundleID});
    processesChanged.post();
    return id;
}

void SimulatedAudioWorld::closeAudio(AudioProcessID process)
{
    if (state_.processes.erase(process) > 0)
        processesChanged.post();
}

void SimulatedAudioWorld::startPlaying(AudioProcessID process, SimulatedSignal signal)
{
    const auto found = state_.processes.find(process);
    if (found == state_.processes.end())
        return;
    found->second.signal = std::move(signal);
    found->second.position = 0;
    if (!std::exchange(found->second.isPlaying, true))
        processesChanged.post();
    scheduleCycles();
}

void SimulatedAudioWorld::stopPlaying(AudioProcessID process)
{
    const auto found = state_.processes.find(process);
    if (found != state_.processes.end() && std::exchange(found->second.isPlaying, false))
        processesChanged.post();
}

void SimulatedAudioWorld::chooseOutputs(AudioProcessID process, std::vector<std::string> uids)
{
    const auto found = state_.processes.find(process);
    if (found == state_.processes.end() || found->second.chosenOutputs == uids)
        return;
    found->second.chosenOutputs = std::move(uids);
    processesChanged.post();
}

void SimulatedAudioWorld::setOutOfReach(AudioProcessID process, std::optional<OutOfReach> reason)
{
    const auto found = state_.processes.find(process);
    if (found != state_.processes.end() && std::exchange(found->second.outOfReach, reason) != reason)
        processesChanged.post();
}

void SimulatedAudioWorld::setUsingMic(AudioProcessID process, UsesMic usesMic)
{
    const auto found = state_.processes.find(process);
    const bool isUsingMic = usesMic == UsesMic::yes;
    if (found != state_.processes.end() && std::exchange(found->second.isUsingMic, isUsingMic) != isUsingMic)
        processesChanged.post();
}

AudioProcessID SimulatedAudioWorld::audioProcessOf(ProcessID pid) const
{
    const auto found =
        std::ranges::find_if(state_.processes, [pid](const auto& entry) { return entry.second.pid == pid; });
    return found == state_.processes.end() ? 0 : found->first;
}

void SimulatedAudioWorld::runCycle(std::uint32_t frames)
{
    const SimulatedMainLoop::OtherThread ioThread;
    state_.hostTime = clock_.now();
    heard_ = runSimulatedCycle(state_, frames);
}

HeardAudio SimulatedAudioWorld::heard(const std::string& uid) const
{
    const auto found = heard_.find(uid);
    return found == heard_.end() ? HeardAudio{} : found->second;
}

bool SimulatedAudioWorld::isActive() const
{
    return std::ranges::any_of(state_.taps, [](const auto& entry) { return entry.second.device != 0; })
        || std::ranges::any_of(state_.processes, [](const auto& entry) { return entry.second.isPlaying; });
}

void SimulatedAudioWorld::scheduleCycles()
{
    if (isCycleScheduled_ || cycleInterval_ <= std::chrono::milliseconds{0} || !isActive())
        return;
    isCycleScheduled_ = true;
    clock_.schedule(cycleInterval_, [this] {
        isCycleScheduled_ = false;
        const auto device = state_.devices.find(state_.defaultOutput);
        const double rate = device == state_.devices.end() ? 48000 : device->second.sampleRate;
        const auto interval = std::chrono::duration<double>{cycleInterval_};
        if (isActive() && interval.count() > 0)
            runCycle(static_cast<std::uint32_t>(rate * interval.count()));
        scheduleCycles();
    });
}

}  // namespace fadeloom
