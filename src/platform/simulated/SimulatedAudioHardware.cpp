// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedAudioHardware.h"

#include <algorithm>

namespace fadeloom {

AudioStatus SimulatedAudioHardware::note(
    AudioOperation operation, AudioObjectID object, AudioStatus status, AudioObjectPropertySelector selector)
{
    journal_.push_back({operation, object, status, selector});
    return status;
}

SimulatedAudioHardware::SimulatedAudioHardware(SimulatedAudioSystem& system)
    : system_(system)
{
}

AudioStatus SimulatedAudioHardware::check(const TapDescription& description) const
{
    const auto& processes = system_.objects().processes;
    const bool areKnown = std::ranges::all_of(
        description.processes, [&](AudioObjectID process) { return processes.contains(process); });
    return areKnown ? kAudioHardwareNoError : kAudioHardwareBadObjectError;
}

AudioResult<AudioObjectID> SimulatedAudioHardware::createProcessTap(const TapDescription& description)
{
    tapDescriptions_.push_back(description);
    AudioStatus status = faults_.check(AudioOperation::createProcessTap, kAudioObjectUnknown);
    if (status == kAudioHardwareNoError)
        status = check(description);
    AudioObjectID tap = kAudioObjectUnknown;
    if (status == kAudioHardwareNoError) {
        tap = system_.objects().newID();
        system_.objects().taps.emplace(tap, SimulatedTap{description, system_.tapFormat()});
    }
    if (note(AudioOperation::createProcessTap, tap, status) != kAudioHardwareNoError)
        return std::unexpected{status};
    return tap;
}

AudioStatus SimulatedAudioHardware::describeProcessTap(AudioObjectID tap, const TapDescription& description)
{
    tapDescriptions_.push_back(description);
    AudioStatus status = faults_.check(AudioOperation::describeProcessTap, tap);
    const auto found = system_.objects().taps.find(tap);
    if (status == kAudioHardwareNoError)
        status = found == system_.objects().taps.end() ? kAudioHardwareBadObjectError : check(description);
    if (status == kAudioHardwareNoError)
        found->second.description = description;
    return note(AudioOperation::describeProcessTap, tap, status);
}

AudioStatus SimulatedAudioHardware::destroyProcessTap(AudioObjectID tap)
{
    AudioStatus status = faults_.check(AudioOperation::destroyProcessTap, tap);
    if (status == kAudioHardwareNoError && system_.objects().taps.erase(tap) == 0)
        status = kAudioHardwareBadObjectError;
    if (status == kAudioHardwareNoError)
        system_.listeners().forget(tap);
    return note(AudioOperation::destroyProcessTap, tap, status);
}

AudioResult<AudioObjectID> SimulatedAudioHardware::createAggregateDevice(
    const AggregateDescription& description)
{
    aggregateDescriptions_.push_back(description);
    const AudioStatus refusal = faults_.check(AudioOperation::createAggregateDevice, kAudioObjectUnknown);
    const AudioResult<AudioObjectID> made = refusal == kAudioHardwareNoError
        ? makeAggregate(description)
        : AudioResult<AudioObjectID>{std::unexpected{refusal}};
    note(AudioOperation::createAggregateDevice, made.value_or(kAudioObjectUnknown),
        made ? kAudioHardwareNoError : made.error());
    return made;
}

AudioResult<AudioObjectID> SimulatedAudioHardware::makeAggregate(const AggregateDescription& description)
{
    SimulatedAudioObjects& objects = system_.objects();
    const AudioObjectID clock = objects.deviceWithUID(description.master);
    if (clock == kAudioObjectUnknown)
        return std::unexpected{kAudioHardwareBadDeviceError};
    if (description.uid.empty() || objects.deviceWithUID(description.uid) != kAudioObjectUnknown)
        return std::unexpected{kAudioHardwareIllegalOperationError};

    const AudioObjectID id = objects.newID();
    SimulatedAudioDevice device{objects.devices.at(clock).traits, {}, {}};
    device.outputs = system_.makeStreams(device.traits.outputStreams);
    device.inputs = system_.makeStreams(device.traits.inputStreams);
    for (const AggregateDescription::SubTap& subTap : description.taps) {
        const AudioObjectID tap = objects.tapWithUUID(subTap.uid);
        if (tap == kAudioObjectUnknown)
            continue;  // Without its tap an aggregate is silent, not refused.
        device.inputs.push_back(system_.makeStreams({objects.taps.at(tap).format.channelsPerFrame}).front());
        device.inputs.back().tap = tap;
    }
    device.traits.uid = description.uid;
    device.traits.name = description.name;
    device.aggregate = description;
    device.clock = clock;
    objects.devices.emplace(id, std::move(device));
    system_.tell(kAudioObjectSystemObject, kAudioHardwarePropertyDevices);
    return id;
}

AudioStatus SimulatedAudioHardware::destroyAggregateDevice(AudioObjectID device)
{
    AudioStatus status = faults_.check(AudioOperation::destroyAggregateDevice, device);
    const auto found = system_.objects().devices.find(device);
    if (status == kAudioHardwareNoError
        && (found == system_.objects().devices.end() || !found->second.aggregate))
        status = kAudioHardwareBadObjectError;
    if (status == kAudioHardwareNoError)
        system_.remove(device);
    return note(AudioOperation::destroyAggregateDevice, device, status);
}

AudioResult<AudioDeviceIOProcID> SimulatedAudioHardware::createIOProc(AudioObjectID device, AudioIOProc& proc)
{
    AudioStatus status = faults_.check(AudioOperation::createIOProc, device);
    const auto found = system_.objects().devices.find(device);
    if (status == kAudioHardwareNoError && found == system_.objects().devices.end())
        status = kAudioHardwareBadObjectError;
    if (note(AudioOperation::createIOProc, device, status) != kAudioHardwareNoError)
        return std::unexpected{status};
    SimulatedIOProc made;
    made.id = reinterpret_cast<AudioDeviceIOProcID>(++lastProcID_);  // Opaque: a number, pointing nowhere.
    made.proc = &proc;
    made.inputUsage.assign(found->second.inputs.size(), 1);
    made.outputUsage.assign(found->second.outputs.size(), 1);
    found->second.procs.push_back(std::move(made));
    return found->second.procs.back().id;
}

AudioStatus SimulatedAudioHardware::destroyIOProc(AudioObjectID device, AudioDeviceIOProcID proc)
{
    AudioStatus status = faults_.check(AudioOperation::destroyIOProc, device);
    const auto found = system_.objects().devices.find(device);
    if (status == kAudioHardwareNoError && found == system_.objects().devices.end())
        status = kAudioHardwareBadObjectError;
    if (status == kAudioHardwareNoError
        && std::erase_if(found->second.procs, [proc](const SimulatedIOProc& each) { return each.id == proc; })
            == 0)
        status = kAudioHardwareIllegalOperationError;
    return note(AudioOperation::destroyIOProc, device, status);
}

AudioStatus SimulatedAudioHardware::start(AudioObjectID device, AudioDeviceIOProcID proc)
{
    AudioStatus status = faults_.check(AudioOperation::start, device);
    if (status == kAudioHardwareNoError)
        status = setRunning(device, proc, true);
    if (status == kAudioHardwareNoError)
        system_.keepCycling();
    return note(AudioOperation::start, device, status);
}

AudioStatus SimulatedAudioHardware::stop(AudioObjectID device, AudioDeviceIOProcID proc)
{
    AudioStatus status = faults_.check(AudioOperation::stop, device);
    if (status == kAudioHardwareNoError)
        status = setRunning(device, proc, false);
    return note(AudioOperation::stop, device, status);
}

AudioStatus SimulatedAudioHardware::setRunning(AudioObjectID device, AudioDeviceIOProcID proc, bool isRunning)
{
    const auto found = system_.objects().devices.find(device);
    if (found == system_.objects().devices.end())
        return kAudioHardwareBadObjectError;
    SimulatedIOProc* const known = found->second.find(proc);
    if (known == nullptr)
        return kAudioHardwareIllegalOperationError;
    if (isRunning && found->second.aggregate && found->second.clock == kAudioObjectUnknown)
        return kAudioHardwareBadDeviceError;
    known->isRunning = isRunning;
    return kAudioHardwareNoError;
}

std::vector<AudioOperation> SimulatedAudioHardware::operations() const
{
    std::vector<AudioOperation> operations;
    for (const Call& call : journal_)
        operations.push_back(call.operation);
    return operations;
}

int SimulatedAudioHardware::readCount(AudioObjectPropertySelector selector) const
{
    const auto found = readCounts_.find(selector);
    return found == readCounts_.end() ? 0 : found->second;
}

int SimulatedAudioHardware::readCount() const
{
    int count = 0;
    for (const auto& entry : readCounts_)
        count += entry.second;
    return count;
}

}  // namespace fadeloom
