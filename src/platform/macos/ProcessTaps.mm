// SPDX-License-Identifier: MIT
#include "platform/macos/ProcessTaps.h"

#include "platform/macos/HAL.h"
#include "platform/macos/NSText.h"

#import <CoreAudio/AudioHardwareTapping.h>
#import <CoreAudio/CATapDescription.h>

namespace fadeloom::ProcessTaps {
namespace {

CATapDescription* objectOf(const ProcessTapDescription& description)
{
    NSMutableArray<NSNumber*>* processes = [NSMutableArray array];
    for (const AudioProcessID process : description.processes)
        [processes addObject:@(process)];
    CATapDescription* object = [[CATapDescription alloc] initStereoMixdownOfProcesses:processes];
    if (NSUUID* uuid = [[NSUUID alloc] initWithUUIDString:nsText(description.uuid)])
        object.UUID = uuid;
    object.name = nsText(description.name);
    object.privateTap = YES;
    object.muteBehavior = CATapMutedWhenTapped;
    return object;
}

}  // namespace

std::expected<AudioObjectID, OSStatus> create(const ProcessTapDescription& description)
{
    @autoreleasepool {
        AudioObjectID tap = kAudioObjectUnknown;
        const OSStatus status = AudioHardwareCreateProcessTap(objectOf(description), &tap);
        if (status != kAudioHardwareNoError)
            return std::unexpected(status);
        return tap;
    }
}

OSStatus describe(AudioObjectID tap, const ProcessTapDescription& description)
{
    @autoreleasepool {
        CATapDescription* object = objectOf(description);
        const void* value = (__bridge const void*)object;
        return HAL::setValue(tap, HAL::address(kAudioTapPropertyDescription), value);
    }
}

OSStatus destroy(AudioObjectID tap)
{
    return AudioHardwareDestroyProcessTap(tap);
}

}  // namespace fadeloom::ProcessTaps
