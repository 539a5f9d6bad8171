// SPDX-License-Identifier: MIT
// What PipeWireHardware answers when a property is read.
#include "platform/pipewire/GraphSession.h"
#include "platform/pipewire/PipeWireHardware.h"
#include "platform/pipewire/PipeWireObjects.h"

#include <array>
#include <cstring>
#include <type_traits>

namespace fadeloom {

namespace {

using Bytes = std::vector<std::byte>;

template <typename T>
    requires std::is_trivially_copyable_v<T>
Bytes bytesOf(const T& value)
{
    Bytes bytes(sizeof value);
    std::memcpy(bytes.data(), &value, sizeof value);
    return bytes;
}

template <typename Things>
Bytes idsOf(const Things& things)
{
    Bytes bytes;
    for (const auto& thing : things) {
        const auto id = bytesOf(thing.id);
        bytes.insert(bytes.end(), id.begin(), id.end());
    }
    return bytes;
}

Bytes flag(bool isSet)
{
    return bytesOf(std::uint32_t{isSet ? 1U : 0U});
}

AudioStreamBasicDescription stereoFloat(double rate)
{
    return {
        .sampleRate = rate,
        .formatID = kAudioFormatLinearPCM,
        .formatFlags = kAudioFormatFlagIsFloat | kAudioFormatFlagIsPacked | kAudioFormatFlagIsNonInterleaved,
        .bytesPerPacket = sizeof(float),
        .framesPerPacket = 1,
        .bytesPerFrame = sizeof(float),
        .channelsPerFrame = 2,
        .bitsPerChannel = 32,
    };
}

}  // namespace

AudioResult<std::optional<std::string>> PipeWireHardware::readText(
    AudioObjectID object, const AudioObjectPropertyAddress& address) const
{
    const auto world = session_->world();
    const auto selector = address.selector;
    if (const auto* device = world->device(object)) {
        if (selector == kAudioDevicePropertyDeviceUID)
            return device->uid;
        if (selector == kAudioObjectPropertyName)
            return device->name;
        return std::unexpected{kAudioHardwareUnknownPropertyError};
    }
    if (const auto* process = world->process(object)) {
        if (selector == kAudioProcessPropertyBundleID)
            return options_.bundleIdentifier(pidOf(*process), process->portalAppID);
        return std::unexpected{kAudioHardwareUnknownPropertyError};
    }
    if (const auto aggregate = aggregates_.find(object); aggregate != aggregates_.end()) {
        if (selector == kAudioDevicePropertyDeviceUID)
            return aggregate->second->description.uid;
        if (selector == kAudioObjectPropertyName)
            return aggregate->second->description.name;
        return std::unexpected{kAudioHardwareUnknownPropertyError};
    }
    const bool exists = object == kAudioObjectSystemObject || taps_.contains(object);
    return std::unexpected{exists ? kAudioHardwareUnknownPropertyError : kAudioHardwareBadObjectError};
}

AudioResult<Bytes> PipeWireHardware::valueOf(
    AudioObjectID object, const AudioObjectPropertyAddress& address) const
{
    if (object == kAudioObjectSystemObject)
        return systemValue(address.selector);
    const auto world = session_->world();
    if (const auto* device = world->device(object))
        return deviceValue(*device, address);
    if (const auto* process = world->process(object))
        return processValue(*process, address.selector);
    if (const auto aggregate = aggregates_.find(object); aggregate != aggregates_.end()) {
        return aggregateValue(*aggregate->second, address);
    }
    if (taps_.contains(object)) {
        const auto* device = world->device(world->defaultDevice);
        if (address.selector == kAudioTapPropertyFormat)
            return bytesOf(stereoFloat(session_->rateOf(device ? *device : AudioWorld::Device{})));
        return std::unexpected{kAudioHardwareUnknownPropertyError};
    }
    return std::unexpected{kAudioHardwareBadObjectError};
}

AudioResult<Bytes> PipeWireHardware::systemValue(AudioObjectPropertySelector selector) const
{
    const auto world = session_->world();
    switch (selector) {
    case kAudioHardwarePropertyDevices:
        return idsOf(world->devices);
    case kAudioHardwarePropertyDefaultOutputDevice:
        return bytesOf(world->defaultDevice);
    case kAudioHardwarePropertyProcessObjectList:
        return idsOf(world->processes);
    default:
        return std::unexpected{kAudioHardwareUnknownPropertyError};
    }
}

AudioResult<Bytes> PipeWireHardware::deviceValue(
    const AudioWorld::Device& device, const AudioObjectPropertyAddress& address) const
{
    const bool isOutput = address.scope == kAudioObjectPropertyScopeOutput;
    switch (address.selector) {
    case kAudioDevicePropertyNominalSampleRate:
        return bytesOf(session_->rateOf(device));
    case kAudioDevicePropertyStreams:
        // One stream with all channels. Sinks have no inputs; their microphones are nodes of their own.
        return isOutput ? bytesOf(device.streamID) : Bytes{};
    case kAudioDevicePropertyPreferredChannelsForStereo:
        if (isOutput)
            return bytesOf(std::array{device.layout.left, device.layout.right});
        break;
    default:
        break;
    }
    return std::unexpected{kAudioHardwareUnknownPropertyError};
}

AudioResult<Bytes> PipeWireHardware::aggregateValue(
    const Aggregate& aggregate, const AudioObjectPropertyAddress& address) const
{
    switch (address.selector) {
    case kAudioDevicePropertyNominalSampleRate:
        return bytesOf(rateOf(aggregate));
    case kAudioDevicePropertyStreams:
        return bytesOf(
            address.scope == kAudioObjectPropertyScopeInput ? aggregate.inputStream : aggregate.outputStream);
    default:
        return std::unexpected{kAudioHardwareUnknownPropertyError};
    }
}

AudioResult<Bytes> PipeWireHardware::processValue(
    const AudioWorld::Process& process, AudioObjectPropertySelector selector) const
{
    switch (selector) {
    case kAudioProcessPropertyPID:
        return bytesOf(pidOf(process));
    case kAudioProcessPropertyIsRunningOutput:
        return flag(process.isPlaying);
    case kAudioProcessPropertyIsRunningInput:
        return flag(process.isUsingMicrophone);
    default:
        return std::unexpected{kAudioHardwareUnknownPropertyError};
    }
}

ProcessID PipeWireHardware::pidOf(const AudioWorld::Process& process) const
{
    // A sandboxed client of pipewire-pulse knows only its pid inside.
    if (process.pid < 0 && !process.portalAppID.empty() && options_.portalProcess)
        return options_.portalProcess(process.portalAppID);
    return process.pid;
}

double PipeWireHardware::rateOf(const Aggregate& aggregate) const
{
    const auto world = session_->world();
    const auto* device = world->deviceWithUID(aggregate.description.master);
    return session_->rateOf(device ? *device : AudioWorld::Device{});
}

}  // namespace fadeloom
