// SPDX-License-Identifier: MIT
#include "platform/macos/CoreAudioHardware.h"

#include "platform/macos/AggregateDictionary.h"
#include "platform/macos/CFText.h"
#include "platform/macos/ProcessTaps.h"
#include "platform/macos/PropertyListener.h"

#include <CoreAudio/CoreAudio.h>

#include <memory>
#include <utility>

namespace fadeloom {
namespace {

::AudioObjectPropertyAddress addressOf(const AudioObjectPropertyAddress& address)
{
    return {address.selector, address.scope, address.element};
}

::AudioDeviceIOProcID idOf(AudioDeviceIOProcID proc)
{
    return reinterpret_cast<::AudioDeviceIOProcID>(proc);
}

/// A buffer of the audio system and one of ours are the same bytes; CoreAudioNames.cpp holds them together.
AudioBuffers buffersOf(const ::AudioBufferList* list)
{
    if (list == nullptr)
        return {};
    return {reinterpret_cast<const AudioBuffer*>(list->mBuffers), list->mNumberBuffers};
}

}  // namespace

AudioResult<std::size_t> CoreAudioHardware::propertySize(
    AudioObjectID object, const AudioObjectPropertyAddress& address) const
{
    const auto where = addressOf(address);
    UInt32 size = 0;
    const AudioStatus status = AudioObjectGetPropertyDataSize(object, &where, 0, nullptr, &size);
    if (status != kAudioHardwareNoError)
        return std::unexpected(status);
    return size;
}

AudioResult<std::size_t> CoreAudioHardware::readProperty(
    AudioObjectID object, const AudioObjectPropertyAddress& address, std::span<std::byte> value) const
{
    const auto where = addressOf(address);
    auto size = static_cast<UInt32>(value.size());
    const AudioStatus status = AudioObjectGetPropertyData(object, &where, 0, nullptr, &size, value.data());
    if (status != kAudioHardwareNoError)
        return std::unexpected(status);
    return size;
}

AudioStatus CoreAudioHardware::writeProperty(
    AudioObjectID object, const AudioObjectPropertyAddress& address, std::span<const std::byte> value)
{
    const auto where = addressOf(address);
    return AudioObjectSetPropertyData(
        object, &where, 0, nullptr, static_cast<UInt32>(value.size()), value.data());
}

AudioResult<std::optional<std::string>> CoreAudioHardware::readText(
    AudioObjectID object, const AudioObjectPropertyAddress& address) const
{
    const auto where = addressOf(address);
    CFStringRef owned = nullptr;
    UInt32 size = sizeof owned;
    const AudioStatus status = AudioObjectGetPropertyData(object, &where, 0, nullptr, &size, &owned);
    if (status != kAudioHardwareNoError)
        return std::unexpected(status);
    if (size != sizeof owned)  // A number, and no text that could be released.
        return std::unexpected(kAudioHardwareBadPropertySizeError);
    const auto text = CFRef<CFStringRef>::adopt(owned);
    return text ? std::optional(textOf(text.get())) : std::nullopt;
}

AudioResult<Subscription> CoreAudioHardware::listen(
    AudioObjectID object, const AudioObjectPropertyAddress& address, Listener listener)
{
    auto added = PropertyListener::add(object, addressOf(address), std::move(listener));
    if (!added)
        return std::unexpected(added.error());
    // A subscription's end is copyable, as every std::function.
    return Subscription([kept = std::shared_ptr(std::move(*added))]() mutable { kept.reset(); });
}

AudioResult<AudioObjectID> CoreAudioHardware::createProcessTap(const TapDescription& description)
{
    return ProcessTaps::create(description);
}

AudioStatus CoreAudioHardware::describeProcessTap(AudioObjectID tap, const TapDescription& description)
{
    return ProcessTaps::describe(tap, description);
}

AudioStatus CoreAudioHardware::destroyProcessTap(AudioObjectID tap)
{
    return ProcessTaps::destroy(tap);
}

AudioResult<AudioObjectID> CoreAudioHardware::createAggregateDevice(const AggregateDescription& description)
{
    const auto dictionary = aggregateDictionary(description);
    AudioObjectID device = kAudioObjectUnknown;
    const AudioStatus status = AudioHardwareCreateAggregateDevice(dictionary.get(), &device);
    if (status != kAudioHardwareNoError)
        return std::unexpected(status);
    return device;
}

AudioStatus CoreAudioHardware::destroyAggregateDevice(AudioObjectID device)
{
    return AudioHardwareDestroyAggregateDevice(device);
}

AudioResult<AudioDeviceIOProcID> CoreAudioHardware::createIOProc(AudioObjectID device, AudioIOProc& proc)
{
    // Without a queue the block runs on the device's IO thread itself. It is copied until it is destroyed there.
    ::AudioDeviceIOProcID created = nullptr;
    AudioIOProc* const called = &proc;
    const AudioStatus status = AudioDeviceCreateIOProcIDWithBlock(&created, device, nullptr,
        ^(const ::AudioTimeStamp*, const ::AudioBufferList* input, const ::AudioTimeStamp*,
            ::AudioBufferList* output,
            const ::AudioTimeStamp*) { called->render(buffersOf(input), buffersOf(output)); });
    if (status != kAudioHardwareNoError)
        return std::unexpected(status);
    return reinterpret_cast<AudioDeviceIOProcID>(created);
}

AudioStatus CoreAudioHardware::destroyIOProc(AudioObjectID device, AudioDeviceIOProcID proc)
{
    return AudioDeviceDestroyIOProcID(device, idOf(proc));
}

AudioStatus CoreAudioHardware::start(AudioObjectID device, AudioDeviceIOProcID proc)
{
    return AudioDeviceStart(device, idOf(proc));
}

AudioStatus CoreAudioHardware::stop(AudioObjectID device, AudioDeviceIOProcID proc)
{
    return AudioDeviceStop(device, idOf(proc));
}

}  // namespace fadeloom
