// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedAudioProperties.h"

#include <cstring>
#include <type_traits>

namespace fadeloom {

namespace {

using Result = AudioResult<SimulatedPropertyValue>;

const std::unexpected unknownProperty{kAudioHardwareUnknownPropertyError};

template <typename T>
SimulatedPropertyValue scalar(const T& value)
{
    static_assert(std::is_trivially_copyable_v<T>);
    SimulatedBytes bytes(sizeof value);
    std::memcpy(bytes.data(), &value, sizeof value);
    return bytes;
}

SimulatedPropertyValue list(const std::vector<AudioObjectID>& ids)
{
    SimulatedBytes bytes(ids.size() * sizeof(AudioObjectID));
    if (!ids.empty())
        std::memcpy(bytes.data(), ids.data(), bytes.size());
    return bytes;
}

template <typename T>
SimulatedPropertyValue listOfKeys(const std::map<AudioObjectID, T>& objects)
{
    std::vector<AudioObjectID> ids;
    ids.reserve(objects.size());
    for (const auto& entry : objects)
        ids.push_back(entry.first);
    return list(ids);
}

Result systemProperty(const SimulatedAudioObjects& objects, const AudioObjectPropertyAddress& address)
{
    if (address.scope != kAudioObjectPropertyScopeGlobal)
        return unknownProperty;
    switch (address.selector) {
    case kAudioHardwarePropertyDevices:
        return listOfKeys(objects.devices);
    case kAudioHardwarePropertyProcessObjectList:
        return listOfKeys(objects.processes);
    case kAudioHardwarePropertyDefaultOutputDevice:
        return scalar(objects.defaultOutput);
    default:
        return unknownProperty;
    }
}

Result processProperty(const SimulatedAudioProcess& process, const AudioObjectPropertyAddress& address)
{
    if (address.scope != kAudioObjectPropertyScopeGlobal)
        return unknownProperty;
    switch (address.selector) {
    case kAudioProcessPropertyPID:
        return scalar(process.pid);
    case kAudioProcessPropertyBundleID:
        return process.bundleID.empty() ? SimulatedPropertyText{} : SimulatedPropertyText{process.bundleID};
    case kAudioProcessPropertyIsRunningInput:
        return scalar(std::uint32_t{process.isRunningInput});
    case kAudioProcessPropertyIsRunningOutput:
        return scalar(std::uint32_t{process.isRunningOutput});
    default:
        return unknownProperty;
    }
}

SimulatedPropertyValue streamIDs(const std::vector<SimulatedStream>& streams)
{
    std::vector<AudioObjectID> ids;
    for (const SimulatedStream& stream : streams)
        ids.push_back(stream.id);
    return list(ids);
}

Result scopedDeviceProperty(const SimulatedAudioDevice& device, const AudioObjectPropertyAddress& address)
{
    const bool isOutput = address.scope == kAudioObjectPropertyScopeOutput;
    if (!isOutput && address.scope != kAudioObjectPropertyScopeInput)
        return unknownProperty;
    if (address.selector == kAudioDevicePropertyStreams)
        return streamIDs(isOutput ? device.outputs : device.inputs);
    if (address.selector == kAudioDevicePropertyPreferredChannelsForStereo && isOutput
        && device.traits.stereoPair)
        return scalar(*device.traits.stereoPair);
    return unknownProperty;
}

Result deviceProperty(const SimulatedAudioDevice& device, const AudioObjectPropertyAddress& address)
{
    if (address.scope != kAudioObjectPropertyScopeGlobal)
        return scopedDeviceProperty(device, address);
    switch (address.selector) {
    case kAudioObjectPropertyName:
        return SimulatedPropertyText{device.traits.name};
    case kAudioDevicePropertyDeviceUID:
        return SimulatedPropertyText{device.traits.uid};
    case kAudioDevicePropertyNominalSampleRate:
        return scalar(device.traits.sampleRate);
    default:
        return unknownProperty;
    }
}

Result tapProperty(const SimulatedTap& tap, const AudioObjectPropertyAddress& address)
{
    if (address.scope == kAudioObjectPropertyScopeGlobal && address.selector == kAudioTapPropertyFormat)
        return scalar(tap.format);
    if (address.scope == kAudioObjectPropertyScopeGlobal && address.selector == kAudioObjectPropertyName)
        return SimulatedPropertyText{tap.description.name};
    return unknownProperty;
}

}  // namespace

AudioResult<SimulatedPropertyValue> simulatedProperty(
    const SimulatedAudioObjects& objects, AudioObjectID object, const AudioObjectPropertyAddress& address)
{
    if (!objects.exists(object))
        return std::unexpected{kAudioHardwareBadObjectError};
    if (address.element != kAudioObjectPropertyElementMain)
        return unknownProperty;
    if (object == kAudioObjectSystemObject)
        return systemProperty(objects, address);
    if (const auto process = objects.processes.find(object); process != objects.processes.end())
        return processProperty(process->second, address);
    if (const auto device = objects.devices.find(object); device != objects.devices.end())
        return deviceProperty(device->second, address);
    if (const auto tap = objects.taps.find(object); tap != objects.taps.end())
        return tapProperty(tap->second, address);
    return unknownProperty;
}

}  // namespace fadeloom
