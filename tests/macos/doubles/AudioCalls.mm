// SPDX-License-Identifier: MIT
// The functions of the audio hardware layer, on the audio world.
#include "tests/macos/doubles/AudioWorld.h"
#include "tests/macos/doubles/Collections.h"
#include "tests/macos/doubles/Runtime.h"

#import <CoreAudio/AudioHardwareTapping.h>

#include <algorithm>
#include <cstring>

using namespace doubles;

@implementation CATapDescription

- (instancetype)initStereoMixdownOfProcesses:(NSArray<NSNumber*>*)processObjectIDs
{
    if ((self = [super init])) {
        self.processes = processObjectIDs;
        self.name = @"";
    }
    return self;
}

@end

namespace {

AudioWorld& world()
{
    return AudioWorld::current();
}

std::string asked(const char* call, const AudioObjectPropertyAddress& address)
{
    const bool isGlobal = address.mScope == kAudioObjectPropertyScopeGlobal;
    return std::string(call) + ' ' + characters(address.mSelector)
        + (isGlobal ? "" : ' ' + characters(address.mScope)) + " of";
}

bool isSame(const AudioObjectPropertyAddress& one, const AudioObjectPropertyAddress& other)
{
    return std::memcmp(&one, &other, sizeof one) == 0;
}

std::string textAt(id dictionary, NSString* key)
{
    id value = static_cast<NSDictionary*>(dictionary)[key];
    return value == nil ? "" : static_cast<NSString*>(value).UTF8String;
}

/// The procedure concerned by a call; null if there is none.
Proc* procOf(AudioObjectID device, AudioDeviceIOProcID proc)
{
    const auto aggregate = world().aggregates.find(device);
    if (aggregate == world().aggregates.end())
        return nullptr;
    const auto found = aggregate->second.procs.find(proc);
    return found == aggregate->second.procs.end() ? nullptr : &found->second;
}

/// The record of one procedure contains its own flags: the procedure is given in the input bytes.
void fillInUsage(AudioObjectID device, const void* given, std::vector<std::byte>& bytes)
{
    AudioDeviceIOProcID proc = nullptr;
    std::memcpy(&proc, given, sizeof proc);
    std::memcpy(bytes.data(), given, sizeof proc);
    if (const Proc* const found = procOf(device, proc))
        std::memcpy(bytes.data() + offsetof(AudioHardwareIOProcStreamUsage, mStreamIsOn),
            found->inputIsOn.data(), found->inputIsOn.size() * sizeof(UInt32));
}

}  // namespace

extern "C" {

OSStatus AudioObjectGetPropertyDataSize(
    AudioObjectID object, const AudioObjectPropertyAddress* address, UInt32, const void*, UInt32* size)
{
    if (const OSStatus status = world().begin(asked("size", *address), object))
        return status;
    const auto property = world().property(object, *address);
    if (!property)
        return property.error();
    *size = static_cast<UInt32>(property->bytes.size());
    return kAudioHardwareNoError;
}

OSStatus AudioObjectGetPropertyData(AudioObjectID object, const AudioObjectPropertyAddress* address, UInt32,
    const void*, UInt32* size, void* data)
{
    if (const OSStatus status = world().begin(asked("get", *address), object))
        return status;
    if (auto* const answers = world().answers) {
        const std::span given(static_cast<const std::byte*>(data), *size);
        if (const OSStatus status = answers->willRead(object, *address, given))
            return status;
    }
    auto property = world().property(object, *address);
    if (!property)
        return property.error();
    if (*size < property->bytes.size())
        return kAudioHardwareBadPropertySizeError;
    if (address->mSelector == kAudioDevicePropertyIOProcStreamUsage && world().answers == nullptr)
        fillInUsage(object, data, property->bytes);
    *size = static_cast<UInt32>(property->bytes.size());
    if (!property->isText) {
        if (!property->bytes.empty())
            std::memcpy(data, property->bytes.data(), property->bytes.size());
        return kAudioHardwareNoError;
    }
    // With a reference that the caller releases.
    const void* text = nullptr;
    if (property->text)
        text = CFStringCreateWithBytes(kCFAllocatorDefault,
            reinterpret_cast<const UInt8*>(property->text->data()),
            static_cast<CFIndex>(property->text->size()), kCFStringEncodingUTF8, false);
    std::memcpy(data, &text, sizeof text);
    return kAudioHardwareNoError;
}

OSStatus AudioObjectSetPropertyData(AudioObjectID object, const AudioObjectPropertyAddress* address, UInt32,
    const void*, UInt32 size, const void* data)
{
    if (const OSStatus status = world().begin(asked("set", *address), object))
        return status;
    const auto property = world().property(object, *address);
    if (!property)
        return property.error();
    if (size != property->bytes.size())
        return kAudioHardwareBadPropertySizeError;
    return property->write ? property->write(data) : OSStatus{kAudioHardwareUnsupportedOperationError};
}

OSStatus AudioObjectAddPropertyListenerBlock(AudioObjectID object, const AudioObjectPropertyAddress* address,
    dispatch_queue_t queue, AudioObjectPropertyListenerBlock listener)
{
    if (const OSStatus status = world().begin(asked("listen to", *address), object))
        return status;
    if (queue == nil)
        crash("a listener on the audio system's own thread");
    if (const auto property = world().property(object, *address); !property)
        return property.error();
    world().listeners.push_back({object, *address, queue, listener});
    return kAudioHardwareNoError;
}

OSStatus AudioObjectRemovePropertyListenerBlock(AudioObjectID object,
    const AudioObjectPropertyAddress* address, dispatch_queue_t queue,
    AudioObjectPropertyListenerBlock listener)
{
    if (const OSStatus status = world().begin(asked("forget", *address), object))
        return status;
    const auto count = std::erase_if(world().listeners, [&](const AudioWorld::Listener& each) {
        return each.object == object && isSame(each.address, *address) && each.queue == queue
            && each.block == listener;
    });
    return count == 0 ? kAudioHardwareBadObjectError : kAudioHardwareNoError;
}

OSStatus AudioHardwareCreateProcessTap(CATapDescription* description, AudioObjectID* tap)
{
    if (const OSStatus status = world().begin("create tap on", kAudioObjectSystemObject))
        return status;
    *tap = world().nextID();
    world().taps[*tap].uuid = description.UUID.UUIDString.UTF8String;
    const AudioObjectPropertyAddress address{
        kAudioTapPropertyDescription, kAudioObjectPropertyScopeGlobal, 0};
    const void* const value = (__bridge const void*)description;
    const OSStatus status = world().property(*tap, address)->write(&value);
    world().settleProperties();
    return status;
}

OSStatus AudioHardwareDestroyProcessTap(AudioObjectID tap)
{
    if (const OSStatus status = world().begin("destroy", tap))
        return status;
    return world().taps.erase(tap) == 0 ? kAudioHardwareBadObjectError : kAudioHardwareNoError;
}

OSStatus AudioHardwareCreateAggregateDevice(CFDictionaryRef description, AudioObjectID* device)
{
    if (const OSStatus status = world().begin("create aggregate on", kAudioObjectSystemObject))
        return status;
    auto* const entries = (__bridge NSDictionary*)description;
    Aggregate aggregate;
    aggregate.description = described(entries);
    aggregate.uid = textAt(entries, @"uid");
    aggregate.name = textAt(entries, @"name");
    aggregate.master = textAt(entries, @"master");
    aggregate.tapUID = textAt(static_cast<NSArray*>(entries[@"taps"]).firstObject, @"uid");
    *device = world().nextID();
    world().aggregates[*device] = aggregate;
    world().changed(kAudioObjectSystemObject, kAudioHardwarePropertyDevices);
    return kAudioHardwareNoError;
}

OSStatus AudioHardwareDestroyAggregateDevice(AudioObjectID device)
{
    if (const OSStatus status = world().begin("destroy", device))
        return status;
    if (world().devices.contains(device))
        return kAudioHardwareIllegalOperationError;
    if (world().aggregates.erase(device) == 0)
        return kAudioHardwareBadObjectError;
    world().changed(kAudioObjectSystemObject, kAudioHardwarePropertyDevices);
    return kAudioHardwareNoError;
}

OSStatus AudioDeviceCreateIOProcIDWithBlock(
    AudioDeviceIOProcID* proc, AudioObjectID device, dispatch_queue_t queue, AudioDeviceIOBlock block)
{
    if (const OSStatus status = world().begin("create proc on", device))
        return status;
    if (queue != nil)
        crash("an IO procedure that the IO thread waits for");
    const auto aggregate = world().aggregates.find(device);
    if (aggregate == world().aggregates.end())
        return kAudioHardwareBadObjectError;
    *proc = reinterpret_cast<AudioDeviceIOProcID>(static_cast<std::uintptr_t>(world().nextID()));
    const std::uint32_t streams = world().inputStreamsOf(aggregate->second);
    aggregate->second.procs[*proc] = {block, false, std::vector<std::uint32_t>(streams, 1)};
    return kAudioHardwareNoError;
}

OSStatus AudioDeviceDestroyIOProcID(AudioObjectID device, AudioDeviceIOProcID proc)
{
    if (const OSStatus status = world().begin("destroy proc of", device))
        return status;
    if (procOf(device, proc) == nullptr)
        return kAudioHardwareBadObjectError;
    world().aggregates.at(device).procs.erase(proc);
    return kAudioHardwareNoError;
}

OSStatus AudioDeviceStart(AudioObjectID device, AudioDeviceIOProcID proc)
{
    if (const OSStatus status = world().begin("start", device))
        return status;
    Proc* const found = procOf(device, proc);
    if (found == nullptr)
        return kAudioHardwareBadObjectError;
    if (world().deviceOf(world().aggregates.at(device).master) == kAudioObjectUnknown)
        return kAudioHardwareBadDeviceError;
    found->isRunning = true;
    return kAudioHardwareNoError;
}

OSStatus AudioDeviceStop(AudioObjectID device, AudioDeviceIOProcID proc)
{
    if (const OSStatus status = world().begin("stop", device))
        return status;
    Proc* const found = procOf(device, proc);
    if (found == nullptr)
        return kAudioHardwareBadObjectError;
    found->isRunning = false;
    return kAudioHardwareNoError;
}
}
