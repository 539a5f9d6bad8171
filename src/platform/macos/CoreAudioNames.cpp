// SPDX-License-Identifier: MIT
// Holds our names, codes and layouts against those of the platform. There is nothing to run: it compiles or it does
// not.
#include "platform/AudioFiles.h"
#include "platform/AudioHardware.h"

#include <AudioToolbox/AudioToolbox.h>
#include <CoreAudio/CoreAudio.h>

#include <cstddef>

#define FADELOOM_SAME(name)                                                                                  \
    static_assert(static_cast<long long>(fadeloom::name) == static_cast<long long>(::name))
#define FADELOOM_SAME_PLACE(type, ours, theirs)                                                              \
    static_assert(offsetof(fadeloom::type, ours) == offsetof(::type, theirs))

FADELOOM_SAME(kAudioObjectUnknown);
FADELOOM_SAME(kAudioObjectSystemObject);
FADELOOM_SAME(kAudioObjectPropertyScopeGlobal);
FADELOOM_SAME(kAudioObjectPropertyScopeInput);
FADELOOM_SAME(kAudioObjectPropertyScopeOutput);
FADELOOM_SAME(kAudioObjectPropertyElementMain);
FADELOOM_SAME(kAudioObjectPropertyName);
FADELOOM_SAME(kAudioHardwarePropertyDevices);
FADELOOM_SAME(kAudioHardwarePropertyDefaultOutputDevice);
FADELOOM_SAME(kAudioHardwarePropertyProcessObjectList);
FADELOOM_SAME(kAudioDevicePropertyDeviceUID);
FADELOOM_SAME(kAudioDevicePropertyNominalSampleRate);
FADELOOM_SAME(kAudioDevicePropertyStreams);
FADELOOM_SAME(kAudioDevicePropertyPreferredChannelsForStereo);
FADELOOM_SAME(kAudioDevicePropertyIOProcStreamUsage);
FADELOOM_SAME(kAudioProcessPropertyPID);
FADELOOM_SAME(kAudioProcessPropertyBundleID);
FADELOOM_SAME(kAudioProcessPropertyIsRunningInput);
FADELOOM_SAME(kAudioProcessPropertyIsRunningOutput);
FADELOOM_SAME(kAudioTapPropertyFormat);
FADELOOM_SAME(kAudioHardwareNoError);
FADELOOM_SAME(kAudioHardwareNotRunningError);
FADELOOM_SAME(kAudioHardwareUnspecifiedError);
FADELOOM_SAME(kAudioHardwareUnknownPropertyError);
FADELOOM_SAME(kAudioHardwareBadPropertySizeError);
FADELOOM_SAME(kAudioHardwareIllegalOperationError);
FADELOOM_SAME(kAudioHardwareBadObjectError);
FADELOOM_SAME(kAudioHardwareBadDeviceError);
FADELOOM_SAME(kAudioHardwareUnsupportedOperationError);
FADELOOM_SAME(kAudioFormatLinearPCM);
FADELOOM_SAME(kAudioFormatFlagIsFloat);
FADELOOM_SAME(kAudioFormatFlagIsSignedInteger);
FADELOOM_SAME(kAudioFormatFlagIsPacked);
FADELOOM_SAME(kAudioFormatFlagIsNonInterleaved);
FADELOOM_SAME(kAudioFileUnsupportedDataFormatError);
FADELOOM_SAME(kExtAudioFileError_InvalidDataFormat);
FADELOOM_SAME(kExtAudioFileError_InvalidOperationOrder);
FADELOOM_SAME(kExtAudioFileError_AsyncWriteBufferOverflow);

static_assert(sizeof(fadeloom::AudioBuffer) == sizeof(::AudioBuffer));
FADELOOM_SAME_PLACE(AudioBuffer, channels, mNumberChannels);
FADELOOM_SAME_PLACE(AudioBuffer, byteSize, mDataByteSize);
FADELOOM_SAME_PLACE(AudioBuffer, data, mData);

static_assert(sizeof(fadeloom::AudioStreamBasicDescription) == sizeof(::AudioStreamBasicDescription));
FADELOOM_SAME_PLACE(AudioStreamBasicDescription, sampleRate, mSampleRate);
FADELOOM_SAME_PLACE(AudioStreamBasicDescription, formatID, mFormatID);
FADELOOM_SAME_PLACE(AudioStreamBasicDescription, formatFlags, mFormatFlags);
FADELOOM_SAME_PLACE(AudioStreamBasicDescription, bytesPerPacket, mBytesPerPacket);
FADELOOM_SAME_PLACE(AudioStreamBasicDescription, framesPerPacket, mFramesPerPacket);
FADELOOM_SAME_PLACE(AudioStreamBasicDescription, bytesPerFrame, mBytesPerFrame);
FADELOOM_SAME_PLACE(AudioStreamBasicDescription, channelsPerFrame, mChannelsPerFrame);
FADELOOM_SAME_PLACE(AudioStreamBasicDescription, bitsPerChannel, mBitsPerChannel);
FADELOOM_SAME_PLACE(AudioStreamBasicDescription, reserved, mReserved);

static_assert(sizeof(fadeloom::AudioHardwareIOProcStreamUsage) == sizeof(::AudioHardwareIOProcStreamUsage));
FADELOOM_SAME_PLACE(AudioHardwareIOProcStreamUsage, ioProc, mIOProc);
FADELOOM_SAME_PLACE(AudioHardwareIOProcStreamUsage, streamCount, mNumberStreams);
FADELOOM_SAME_PLACE(AudioHardwareIOProcStreamUsage, firstFlag, mStreamIsOn);
