// SPDX-License-Identifier: MIT
// The property calls of the simulated audio hardware; its other calls are in SimulatedAudioHardware.cpp.
#include "platform/simulated/SimulatedAudioHardware.h"
#include "platform/simulated/SimulatedAudioProperties.h"

#include <algorithm>
#include <cstring>

namespace fadeloom {

namespace {

constexpr std::size_t textReferenceSize = 8;  // A text's size is that of the reference to it.

std::size_t usageSize(const std::vector<SimulatedStream>& streams)
{
    return AudioHardwareIOProcStreamUsage::flagsOffset + streams.size() * sizeof(std::uint32_t);
}

const std::vector<SimulatedStream>* streamsOf(
    const SimulatedAudioDevice& device, AudioObjectPropertyScope scope)
{
    if (scope == kAudioObjectPropertyScopeInput)
        return &device.inputs;
    return scope == kAudioObjectPropertyScopeOutput ? &device.outputs : nullptr;
}

}  // namespace

AudioResult<std::size_t> SimulatedAudioHardware::propertySize(
    AudioObjectID object, const AudioObjectPropertyAddress& address) const
{
    if (const auto status = faults_.check(AudioOperation::propertySize, object, address.selector))
        return std::unexpected{status};
    const auto device = system_.objects().devices.find(object);
    if (address.selector == kAudioDevicePropertyIOProcStreamUsage
        && device != system_.objects().devices.end())
        if (const auto* streams = streamsOf(device->second, address.scope))
            return usageSize(*streams);
    const auto value = simulatedProperty(system_.objects(), object, address);
    if (!value)
        return std::unexpected{value.error()};
    const auto* bytes = std::get_if<SimulatedBytes>(&*value);
    return bytes == nullptr ? textReferenceSize : bytes->size();
}

AudioResult<std::size_t> SimulatedAudioHardware::readProperty(
    AudioObjectID object, const AudioObjectPropertyAddress& address, std::span<std::byte> value) const
{
    ++readCounts_[address.selector];
    if (const auto status = faults_.check(AudioOperation::readProperty, object, address.selector))
        return std::unexpected{status};
    const auto device = system_.objects().devices.find(object);
    if (address.selector == kAudioDevicePropertyIOProcStreamUsage
        && device != system_.objects().devices.end())
        return readStreamUsage(device->second, address.scope, value);
    const auto answer = simulatedProperty(system_.objects(), object, address);
    if (!answer)
        return std::unexpected{answer.error()};
    const auto* bytes = std::get_if<SimulatedBytes>(&*answer);
    if (bytes == nullptr || bytes->size() > value.size())
        return std::unexpected{kAudioHardwareBadPropertySizeError};
    std::ranges::copy(*bytes, value.begin());
    return bytes->size();
}

AudioResult<std::optional<std::string>> SimulatedAudioHardware::readText(
    AudioObjectID object, const AudioObjectPropertyAddress& address) const
{
    ++readCounts_[address.selector];
    if (const auto status = faults_.check(AudioOperation::readProperty, object, address.selector))
        return std::unexpected{status};
    const auto answer = simulatedProperty(system_.objects(), object, address);
    if (!answer)
        return std::unexpected{answer.error()};
    const auto* text = std::get_if<SimulatedPropertyText>(&*answer);
    if (text == nullptr)
        return std::unexpected{kAudioHardwareBadPropertySizeError};
    return *text;
}

AudioResult<Subscription> SimulatedAudioHardware::listen(
    AudioObjectID object, const AudioObjectPropertyAddress& address, Listener listener)
{
    if (const auto status = faults_.check(AudioOperation::listen, object, address.selector))
        return std::unexpected{status};
    if (const auto value = simulatedProperty(system_.objects(), object, address); !value)
        return std::unexpected{value.error()};
    return system_.listeners().add(object, address, std::move(listener));
}

AudioStatus SimulatedAudioHardware::writeProperty(
    AudioObjectID object, const AudioObjectPropertyAddress& address, std::span<const std::byte> value)
{
    AudioStatus status = faults_.check(AudioOperation::writeProperty, object, address.selector);
    if (status == kAudioHardwareNoError)
        status = write(object, address, value);
    return note(AudioOperation::writeProperty, object, status, address.selector);
}

AudioStatus SimulatedAudioHardware::write(
    AudioObjectID object, const AudioObjectPropertyAddress& address, std::span<const std::byte> value)
{
    SimulatedAudioObjects& objects = system_.objects();
    const auto device = objects.devices.find(object);
    if (address.selector == kAudioDevicePropertyIOProcStreamUsage && device != objects.devices.end())
        return writeStreamUsage(device->second, address.scope, value);
    const auto present = simulatedProperty(objects, object, address);
    if (!present)
        return present.error();
    const auto* bytes = std::get_if<SimulatedBytes>(&*present);

    if (address.selector == kAudioHardwarePropertyDefaultOutputDevice) {
        if (value.size() != bytes->size())
            return kAudioHardwareBadPropertySizeError;
        AudioObjectID wanted = kAudioObjectUnknown;
        std::memcpy(&wanted, value.data(), sizeof wanted);
        const auto found = objects.devices.find(wanted);
        if (found == objects.devices.end() || found->second.outputs.empty())
            return kAudioHardwareBadDeviceError;
        system_.setDefaultOutput(wanted);
        return kAudioHardwareNoError;
    }
    if (address.selector == kAudioDevicePropertyNominalSampleRate) {
        if (value.size() != bytes->size())
            return kAudioHardwareBadPropertySizeError;
        double rate = 0;
        std::memcpy(&rate, value.data(), sizeof rate);
        if (!(rate > 0))
            return kAudioHardwareIllegalOperationError;
        system_.changeRate(object, rate);
        return kAudioHardwareNoError;
    }
    return kAudioHardwareUnsupportedOperationError;
}

AudioResult<std::size_t> SimulatedAudioHardware::readStreamUsage(
    SimulatedAudioDevice& device, AudioObjectPropertyScope scope, std::span<std::byte> value) const
{
    const auto* streams = streamsOf(device, scope);
    if (streams == nullptr)
        return std::unexpected{kAudioHardwareUnknownPropertyError};
    if (value.size() < usageSize(*streams))
        return std::unexpected{kAudioHardwareBadPropertySizeError};
    AudioDeviceIOProcID id = nullptr;
    std::memcpy(&id, value.data(), sizeof id);
    const SimulatedIOProc* const proc = device.find(id);
    if (proc == nullptr)
        return std::unexpected{kAudioHardwareIllegalOperationError};
    const auto& usage = scope == kAudioObjectPropertyScopeInput ? proc->inputUsage : proc->outputUsage;
    const auto count = static_cast<std::uint32_t>(streams->size());
    std::memcpy(value.data() + sizeof id, &count, sizeof count);
    if (count > 0)
        std::memcpy(value.data() + AudioHardwareIOProcStreamUsage::flagsOffset, usage.data(),
            usageSize(*streams) - AudioHardwareIOProcStreamUsage::flagsOffset);
    return usageSize(*streams);
}

AudioStatus SimulatedAudioHardware::writeStreamUsage(
    SimulatedAudioDevice& device, AudioObjectPropertyScope scope, std::span<const std::byte> value)
{
    const auto* streams = streamsOf(device, scope);
    if (streams == nullptr)
        return kAudioHardwareUnknownPropertyError;
    if (value.size() < usageSize(*streams))
        return kAudioHardwareBadPropertySizeError;
    AudioDeviceIOProcID id = nullptr;
    std::uint32_t count = 0;
    std::memcpy(&id, value.data(), sizeof id);
    std::memcpy(&count, value.data() + sizeof id, sizeof count);
    SimulatedIOProc* const proc = device.find(id);
    if (proc == nullptr || count != streams->size())
        return kAudioHardwareIllegalOperationError;
    auto& usage = scope == kAudioObjectPropertyScopeInput ? proc->inputUsage : proc->outputUsage;
    if (count > 0)
        std::memcpy(usage.data(), value.data() + AudioHardwareIOProcStreamUsage::flagsOffset,
            usageSize(*streams) - AudioHardwareIOProcStreamUsage::flagsOffset);
    return kAudioHardwareNoError;
}

}  // namespace fadeloom
