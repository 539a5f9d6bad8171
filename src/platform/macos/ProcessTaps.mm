// SPDX-License-Identifier: MIT
#include "platform/macos/ProcessTaps.h"

#include "platform/macos/NSText.h"

#import <CoreAudio/AudioHardwareTapping.h>
#import <CoreAudio/CATapDescription.h>
#import <CoreAudio/CoreAudio.h>

namespace fadeloom::ProcessTaps {
namespace {

CATapDescription* objectOf(const TapDescription& description)
{
    NSMutableArray<NSNumber*>* processes = [NSMutableArray array];
    for (const AudioObjectID process : description.processes)
        [processes addObject:@(process)];
    CATapDescription* object = [[CATapDescription alloc] initStereoMixdownOfProcesses:processes];
    if (NSUUID* uuid = [[NSUUID alloc] initWithUUIDString:nsText(description.uuid)])
        object.UUID = uuid;
    object.name = nsText(description.name);
    object.privateTap = description.isPrivate;
    object.muteBehavior = static_cast<CATapMuteBehavior>(description.muteBehavior);
    return object;
}

}  // namespace

AudioResult<AudioObjectID> create(const TapDescription& description)
{
    @autoreleasepool {
        AudioObjectID tap = kAudioObjectUnknown;
        const AudioStatus status = AudioHardwareCreateProcessTap(objectOf(description), &tap);
        if (status != kAudioHardwareNoError)
            return std::unexpected(status);
        return tap;
    }
}

AudioStatus describe(AudioObjectID tap, const TapDescription& description)
{
    @autoreleasepool {
        CATapDescription* object = objectOf(description);
        const void* value = (__bridge const void*)object;
        const ::AudioObjectPropertyAddress address = {::kAudioTapPropertyDescription,
            ::kAudioObjectPropertyScopeGlobal, ::kAudioObjectPropertyElementMain};
        return AudioObjectSetPropertyData(tap, &address, 0, nullptr, sizeof value, &value);
    }
}

AudioStatus destroy(AudioObjectID tap)
{
    return AudioHardwareDestroyProcessTap(tap);
}

}  // namespace fadeloom::ProcessTaps
