// SPDX-License-Identifier: MIT
// The properties of the audio world's objects.
#include "tests/macos/doubles/AudioWorld.h"

#include <cstring>

namespace doubles {
namespace {

template <typename T>
Property valued(const T& value)
{
    Property property;
    property.bytes.resize(sizeof value);
    std::memcpy(property.bytes.data(), &value, sizeof value);
    return property;
}

template <typename T>
Property listed(const std::vector<T>& values)
{
    Property property;
    property.bytes.resize(values.size() * sizeof(T));
    if (!values.empty())
        std::memcpy(property.bytes.data(), values.data(), property.bytes.size());
    return property;
}

Property worded(std::optional<std::string> text)
{
    Property property = valued<const void*>(nullptr);
    property.isText = true;
    property.text = std::move(text);
    return property;
}

/// Ids of streams, which have no properties.
Property streams(std::size_t count)
{
    return listed(std::vector<AudioObjectID>(count, 99));
}

template <typename Map>
Property idsOf(const Map& objects)
{
    std::vector<AudioObjectID> ids;
    for (const auto& [id, object] : objects)
        ids.push_back(id);
    return listed(ids);
}

using Found = std::expected<Property, OSStatus>;
constexpr auto unknown = std::unexpected(OSStatus{kAudioHardwareUnknownPropertyError});

Found ofSystem(AudioWorld& world, AudioObjectPropertySelector selector)
{
    switch (selector) {
    case kAudioHardwarePropertyDevices: {
        Property list = idsOf(world.devices);
        const Property aggregates = idsOf(world.aggregates);
        list.bytes.insert(list.bytes.end(), aggregates.bytes.begin(), aggregates.bytes.end());
        return list;
    }
    case kAudioHardwarePropertyProcessObjectList:
        return idsOf(world.processes);
    case kAudioHardwarePropertyServiceRestarted:  // A notification without a value.
        return Property{};
    case kAudioHardwarePropertyDefaultOutputDevice: {
        Property property = valued(world.defaultOutput);
        property.write = [&world](const void* data) -> OSStatus {
            AudioObjectID wanted = 0;
            std::memcpy(&wanted, data, sizeof wanted);
            if (!world.devices.contains(wanted))
                return kAudioHardwareBadDeviceError;
            world.pending.emplace_back(
                [&world, wanted] { world.setDefaultOutput(world.devices.at(wanted).uid); });
            return kAudioHardwareNoError;
        };
        return property;
    }
    default:
        return unknown;
    }
}

Found ofDevice(const Device& device, const AudioObjectPropertyAddress& address)
{
    switch (address.mSelector) {
    case kAudioDevicePropertyDeviceUID:
        return worded(device.uid);
    case kAudioObjectPropertyName:
        return worded(device.name);
    case kAudioDevicePropertyNominalSampleRate:
        return valued(device.rate);
    case kAudioDevicePropertyDeviceIsAlive:
        return valued(UInt32{device.isAlive});
    case kAudioDevicePropertyStreams:
        return streams(
            address.mScope == kAudioObjectPropertyScopeInput ? device.inputs.size() : device.outputs.size());
    case kAudioDevicePropertyPreferredChannelsForStereo:
        return address.mScope == kAudioObjectPropertyScopeOutput ? Found(valued(device.stereoPair)) : unknown;
    default:
        return unknown;
    }
}

Found ofProcess(const Process& process, AudioObjectPropertySelector selector)
{
    switch (selector) {
    case kAudioProcessPropertyPID:
        return valued(process.pid);
    case kAudioProcessPropertyBundleID:
        return worded(process.bundleID);
    case kAudioProcessPropertyIsRunningOutput:
        return valued(UInt32{process.isRunningOutput});
    case kAudioProcessPropertyIsRunningInput:
        return valued(UInt32{process.isRunningInput});
    default:
        return unknown;
    }
}

Tap copied(CATapDescription* description)
{
    Tap tap;
    tap.uuid = description.UUID.UUIDString.UTF8String;
    tap.name = description.name.UTF8String;
    for (NSNumber* process in description.processes)
        tap.processes.push_back(process.unsignedIntValue);
    tap.isPrivate = description.isPrivate;
    tap.muteBehavior = description.isMuted;
    return tap;
}

Found ofTap(AudioWorld& world, AudioObjectID id, AudioObjectPropertySelector selector)
{
    if (selector == kAudioTapPropertyFormat)
        return valued(world.tapFormat);
    if (selector != kAudioTapPropertyDescription)
        return unknown;
    Property property = valued<const void*>(nullptr);
    property.write = [&world, id](const void* data) -> OSStatus {
        const void* object = nullptr;
        std::memcpy(&object, data, sizeof object);
        auto* const description = (__bridge CATapDescription*)object;
        if (![description isKindOfClass:CATapDescription.class])
            return kAudioHardwareIllegalOperationError;
        world.pending.emplace_back([&world, id, tap = copied(description)] {
            if (world.taps.contains(id))
                world.taps[id] = tap;
        });
        return kAudioHardwareNoError;
    };
    return property;
}

Property streamUsage(AudioWorld& world, Aggregate& aggregate)
{
    constexpr std::size_t flags = offsetof(AudioHardwareIOProcStreamUsage, mStreamIsOn);
    const std::uint32_t count = world.inputStreamsOf(aggregate);
    Property property;
    property.bytes.resize(flags + count * sizeof(UInt32));
    std::memcpy(property.bytes.data() + offsetof(AudioHardwareIOProcStreamUsage, mNumberStreams), &count,
        sizeof count);
    property.write = [&aggregate, count](const void* data) -> OSStatus {
        AudioHardwareIOProcStreamUsage head{};
        std::memcpy(&head, data, flags);
        const auto proc = aggregate.procs.find(reinterpret_cast<AudioDeviceIOProcID>(head.mIOProc));
        if (proc == aggregate.procs.end() || head.mNumberStreams != count)
            return kAudioHardwareIllegalOperationError;
        std::memcpy(proc->second.inputIsOn.data(), static_cast<const std::byte*>(data) + flags,
            count * sizeof(UInt32));
        return kAudioHardwareNoError;
    };
    return property;
}

Found ofAggregate(AudioWorld& world, Aggregate& aggregate, const AudioObjectPropertyAddress& address)
{
    const auto device = world.devices.find(world.deviceOf(aggregate.master));
    const bool isInput = address.mScope == kAudioObjectPropertyScopeInput;
    switch (address.mSelector) {
    case kAudioDevicePropertyDeviceUID:
        return worded(aggregate.uid);
    case kAudioObjectPropertyName:
        return worded(aggregate.name);
    case kAudioDevicePropertyNominalSampleRate:
        return device == world.devices.end() ? unknown : Found(valued(device->second.rate));
    case kAudioDevicePropertyStreams:
        return streams(isInput                  ? world.inputStreamsOf(aggregate)
                : device == world.devices.end() ? 0
                                                : device->second.outputs.size());
    case kAudioDevicePropertyIOProcStreamUsage:
        return isInput ? Found(streamUsage(world, aggregate)) : unknown;
    default:
        return unknown;
    }
}

}  // namespace

Found AudioWorld::property(AudioObjectID object, const AudioObjectPropertyAddress& address)
{
    if (answers != nullptr)
        return answers->property(object, address);
    if (object == kAudioObjectSystemObject)
        return ofSystem(*this, address.mSelector);
    if (const auto device = devices.find(object); device != devices.end())
        return ofDevice(device->second, address);
    if (const auto process = processes.find(object); process != processes.end())
        return ofProcess(process->second, address.mSelector);
    if (taps.contains(object))
        return ofTap(*this, object, address.mSelector);
    if (const auto aggregate = aggregates.find(object); aggregate != aggregates.end())
        return ofAggregate(*this, aggregate->second, address);
    return std::unexpected(OSStatus{kAudioHardwareBadObjectError});
}

}  // namespace doubles
