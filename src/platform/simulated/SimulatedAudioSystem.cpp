// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedAudioSystem.h"

#include <algorithm>
#include <utility>

namespace fadeloom {

class SimulatedAudioSystem::Tap final : public ProcessTap {
public:
    Tap(SimulatedAudioSystem& system, std::uint32_t id, double sampleRate, int disabledInputs)
        : system_(system)
        , id_(id)
        , sampleRate_(sampleRate)
        , disabledInputs_(disabledInputs)
    {
    }
    Tap(const Tap&) = delete;
    Tap& operator=(const Tap&) = delete;
    ~Tap() override
    {
        (void)system_.beginChange(AudioOperation::destroyTap);
        system_.world_.state().taps.erase(id_);
    }

    double sampleRate() const override { return sampleRate_; }
    int disabledInputs() const override { return disabledInputs_; }
    bool setProcesses(const std::vector<AudioProcessID>& processes) override
    {
        if (system_.beginChange(AudioOperation::setTapProcesses) || !system_.areKnown(processes))
            return false;
        system_.world_.state().taps.at(id_).processes = processes;
        return true;
    }

private:
    SimulatedAudioSystem& system_;
    const std::uint32_t id_;
    const double sampleRate_;
    const int disabledInputs_;
};

SimulatedAudioSystem::SimulatedAudioSystem(SimulatedAudioWorld& world)
    : world_(world)
{
}

std::vector<AudioProcess> SimulatedAudioSystem::processes(ReadMic readMic)
{
    wasMicRead_ = readMic == ReadMic::yes;
    std::vector<AudioProcess> processes;
    if (begin(AudioOperation::processes))
        return processes;
    processes.reserve(world_.state().processes.size());
    for (const auto& [id, process] : world_.state().processes)
        processes.push_back({
            .id = id,
            .pid = process.pid,
            .bundleID = process.bundleID,
            .isPlaying = process.isPlaying,
            .isUsingMic = wasMicRead_ && process.isUsingMic,
            .ownOutputs = process.chosenOutputs,
            .outOfReach = process.outOfReach,
        });
    return processes;
}

Subscription SimulatedAudioSystem::whenProcessesChange(Listener listener)
{
    return world_.processesChanged.add(std::move(listener));
}

std::vector<OutputDevice> SimulatedAudioSystem::outputDevices() const
{
    std::vector<OutputDevice> devices;
    if (begin(AudioOperation::outputDevices))
        return devices;
    for (const auto& [id, device] : world_.state().devices) {
        if (!device.outputStreams.empty())
            devices.push_back({.id = id, .uid = device.uid, .name = device.name});
    }
    return devices;
}

Subscription SimulatedAudioSystem::whenOutputDevicesChange(Listener listener)
{
    return world_.outputDevicesChanged.add(std::move(listener));
}

double SimulatedAudioSystem::sampleRate(OutputDeviceID device) const
{
    const auto found = world_.state().devices.find(device);
    return begin(AudioOperation::sampleRate) || found == world_.state().devices.end()
        ? 0
        : found->second.sampleRate;
}

std::optional<std::string> SimulatedAudioSystem::defaultOutput() const
{
    const auto device = world_.state().devices.find(world_.state().defaultOutput);
    if (begin(AudioOperation::defaultOutput) || device == world_.state().devices.end())
        return std::nullopt;
    return device->second.uid;
}

Subscription SimulatedAudioSystem::whenDefaultOutputChanges(Listener listener)
{
    return world_.defaultOutputChanged.add(std::move(listener));
}

bool SimulatedAudioSystem::setDefaultOutput(const OutputDevice& device)
{
    const auto found = world_.state().devices.find(device.id);
    if (beginChange(AudioOperation::setDefaultOutput) || found == world_.state().devices.end()
        || found->second.outputStreams.empty())
        return false;
    world_.setDefaultOutput(device.id);
    return true;
}

std::expected<std::unique_ptr<ProcessTap>, TapError> SimulatedAudioSystem::createTap(
    const TapRequest& request, const AudioIOProcFactory& makeIOProc)
{
    tapRequests_.push_back(request);
    if (const auto refusal = beginChange(AudioOperation::createTap))
        return std::unexpected(TapError{.step = "Create process tap", .status = refusal->status});
    auto& state = world_.state();
    const auto device = state.devices.find(request.output.id);
    if (!areKnown(request.processes))
        return std::unexpected(TapError{.step = "Create process tap", .reason = "a process is gone"});
    if (device == state.devices.end())
        return std::unexpected(TapError{.step = "Start device", .reason = "the device is gone"});

    const auto& traits = device->second;
    const auto id = state.newID();
    state.taps.emplace(id,
        SimulatedTap{.processes = request.processes,
            .scope = request.scope,
            .device = device->first,
            .proc = makeIOProc({.sampleRate = traits.sampleRate, .output = traits.stereoPair})});
    world_.scheduleCycles();
    return std::make_unique<Tap>(*this, id, traits.sampleRate, traits.inputStreams);
}

void SimulatedAudioSystem::refuse(AudioOperation operation, HowOften howOften, std::int32_t status)
{
    refusals_.insert_or_assign(operation, Refusal{howOften, status});
}

auto SimulatedAudioSystem::begin(AudioOperation operation) const -> std::optional<Refusal>
{
    ++callCounts_[operation];
    const auto found = refusals_.find(operation);
    if (found == refusals_.end())
        return std::nullopt;
    const Refusal refusal = found->second;
    if (refusal.howOften == HowOften::once)
        refusals_.erase(found);
    return refusal;
}

auto SimulatedAudioSystem::beginChange(AudioOperation operation) -> std::optional<Refusal>
{
    operations_.push_back(operation);
    return begin(operation);
}

bool SimulatedAudioSystem::areKnown(const std::vector<AudioProcessID>& processes) const
{
    return std::ranges::all_of(
        processes, [&](AudioProcessID process) { return world_.state().processes.contains(process); });
}

int SimulatedAudioSystem::callCount(AudioOperation operation) const
{
    const auto found = callCounts_.find(operation);
    return found == callCounts_.end() ? 0 : found->second;
}

int SimulatedAudioSystem::callCount() const
{
    int count = 0;
    for (const auto& entry : callCounts_)
        count += entry.second;
    return count;
}

}  // namespace fadeloom
