// SPDX-License-Identifier: MIT
// What we use of the audio hardware layer, declared by us.
#pragma once

#include <CoreAudio/CoreAudioTypes.h>
#include <CoreAudio/HostTime.h>
#include <dispatch/dispatch.h>

typedef UInt32 AudioObjectID;
typedef UInt32 AudioObjectPropertySelector;
typedef UInt32 AudioObjectPropertyScope;
typedef UInt32 AudioObjectPropertyElement;

struct AudioObjectPropertyAddress {
    AudioObjectPropertySelector mSelector;
    AudioObjectPropertyScope mScope;
    AudioObjectPropertyElement mElement;
};
typedef struct AudioObjectPropertyAddress AudioObjectPropertyAddress;

CF_ENUM(AudioObjectID){kAudioObjectUnknown = 0};
CF_ENUM(AudioObjectID){kAudioObjectSystemObject = 1};

CF_ENUM(AudioObjectPropertyScope){
    kAudioObjectPropertyScopeGlobal = 'glob',
    kAudioObjectPropertyScopeInput = 'inpt',
    kAudioObjectPropertyScopeOutput = 'outp',
};
CF_ENUM(AudioObjectPropertyElement){kAudioObjectPropertyElementMain = 0};

CF_ENUM(AudioObjectPropertySelector){
    kAudioObjectPropertyName = 'lnam',
    kAudioHardwarePropertyDevices = 'dev#',
    kAudioHardwarePropertyDefaultOutputDevice = 'dOut',
    kAudioHardwarePropertyProcessObjectList = 'prs#',
    kAudioHardwarePropertyServiceRestarted = 'srst',
    kAudioDevicePropertyDeviceUID = 'uid ',
    kAudioDevicePropertyDeviceIsAlive = 'livn',
    kAudioDevicePropertyNominalSampleRate = 'nsrt',
    kAudioDevicePropertyStreams = 'stm#',
    kAudioDevicePropertyPreferredChannelsForStereo = 'dch2',
    kAudioDevicePropertyIOProcStreamUsage = 'suse',
    kAudioProcessPropertyPID = 'ppid',
    kAudioProcessPropertyBundleID = 'pbid',
    kAudioProcessPropertyIsRunningInput = 'piri',
    kAudioProcessPropertyIsRunningOutput = 'piro',
    kAudioTapPropertyDescription = 'tdsc',
    kAudioTapPropertyFormat = 'tfmt',
};

CF_ENUM(OSStatus){
    kAudioHardwareNoError = 0,
    kAudioHardwareNotRunningError = 'stop',
    kAudioHardwareUnspecifiedError = 'what',
    kAudioHardwareUnknownPropertyError = 'who?',
    kAudioHardwareBadPropertySizeError = '!siz',
    kAudioHardwareIllegalOperationError = 'nope',
    kAudioHardwareBadObjectError = '!obj',
    kAudioHardwareBadDeviceError = '!dev',
    kAudioHardwareUnsupportedOperationError = 'unop',
};

#define kAudioAggregateDeviceUIDKey "uid"
#define kAudioAggregateDeviceNameKey "name"
#define kAudioAggregateDeviceMainSubDeviceKey "master"
#define kAudioAggregateDeviceIsPrivateKey "private"
#define kAudioAggregateDeviceIsStackedKey "stacked"
#define kAudioAggregateDeviceSubDeviceListKey "subdevices"
#define kAudioAggregateDeviceTapListKey "taps"
#define kAudioAggregateDeviceTapAutoStartKey "tapautostart"
#define kAudioSubDeviceUIDKey "uid"
#define kAudioSubTapUIDKey "uid"
#define kAudioSubTapDriftCompensationKey "drift"

CF_ASSUME_NONNULL_BEGIN

struct AudioHardwareIOProcStreamUsage {
    void* mIOProc;
    UInt32 mNumberStreams;
    UInt32 mStreamIsOn[1];  // Variable length.
};
typedef struct AudioHardwareIOProcStreamUsage AudioHardwareIOProcStreamUsage;

typedef OSStatus (*AudioDeviceIOProc)(AudioObjectID device, const AudioTimeStamp* now,
    const AudioBufferList* input, const AudioTimeStamp* inputTime, AudioBufferList* output,
    const AudioTimeStamp* outputTime, void* _Nullable clientData);
typedef AudioDeviceIOProc AudioDeviceIOProcID;
typedef void (^AudioDeviceIOBlock)(const AudioTimeStamp* now, const AudioBufferList* input,
    const AudioTimeStamp* inputTime, AudioBufferList* output, const AudioTimeStamp* outputTime);
typedef void (^AudioObjectPropertyListenerBlock)(UInt32 count, const AudioObjectPropertyAddress* addresses);

#ifdef __cplusplus
extern "C" {
#endif

OSStatus AudioObjectGetPropertyDataSize(AudioObjectID object, const AudioObjectPropertyAddress* address,
    UInt32 qualifierSize, const void* _Nullable qualifier, UInt32* size);
OSStatus AudioObjectGetPropertyData(AudioObjectID object, const AudioObjectPropertyAddress* address,
    UInt32 qualifierSize, const void* _Nullable qualifier, UInt32* size, void* data);
OSStatus AudioObjectSetPropertyData(AudioObjectID object, const AudioObjectPropertyAddress* address,
    UInt32 qualifierSize, const void* _Nullable qualifier, UInt32 size, const void* data);
OSStatus AudioObjectAddPropertyListenerBlock(AudioObjectID object, const AudioObjectPropertyAddress* address,
    dispatch_queue_t _Nullable queue, AudioObjectPropertyListenerBlock listener);
OSStatus AudioObjectRemovePropertyListenerBlock(AudioObjectID object,
    const AudioObjectPropertyAddress* address, dispatch_queue_t _Nullable queue,
    AudioObjectPropertyListenerBlock listener);

OSStatus AudioHardwareCreateAggregateDevice(CFDictionaryRef description, AudioObjectID* device);
OSStatus AudioHardwareDestroyAggregateDevice(AudioObjectID device);

OSStatus AudioDeviceCreateIOProcIDWithBlock(AudioDeviceIOProcID _Nullable* _Nonnull proc,
    AudioObjectID device, dispatch_queue_t _Nullable queue, AudioDeviceIOBlock block);
OSStatus AudioDeviceDestroyIOProcID(AudioObjectID device, AudioDeviceIOProcID proc);
OSStatus AudioDeviceStart(AudioObjectID device, AudioDeviceIOProcID _Nullable proc);
OSStatus AudioDeviceStop(AudioObjectID device, AudioDeviceIOProcID _Nullable proc);

#ifdef __cplusplus
}
#endif

CF_ASSUME_NONNULL_END
