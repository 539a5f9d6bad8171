// SPDX-License-Identifier: MIT
// What we use of extended audio files, declared by us.
#pragma once

#include <CoreAudio/CoreAudioTypes.h>

typedef struct OpaqueExtAudioFile* ExtAudioFileRef;
typedef UInt32 ExtAudioFilePropertyID;
typedef UInt32 AudioFileTypeID;
typedef struct AudioChannelLayout AudioChannelLayout;

CF_ENUM(AudioFileTypeID){kAudioFileWAVEType = 'WAVE'};
CF_ENUM(UInt32){kAudioFileFlags_EraseFile = 1};
CF_ENUM(ExtAudioFilePropertyID){kExtAudioFileProperty_ClientDataFormat = 'cfmt'};
CF_ENUM(OSStatus){kAudioFileUnsupportedDataFormatError = 'fmt?'};
CF_ENUM(OSStatus){
    kExtAudioFileError_InvalidOperationOrder = -66565,
    kExtAudioFileError_InvalidDataFormat = -66566,
    kExtAudioFileError_AsyncWriteTooLarge = -66569,
    kExtAudioFileError_AsyncWriteBufferOverflow = -66570,
};

CF_ASSUME_NONNULL_BEGIN

#ifdef __cplusplus
extern "C" {
#endif

OSStatus ExtAudioFileCreateWithURL(CFURLRef location, AudioFileTypeID type,
    const AudioStreamBasicDescription* format, const AudioChannelLayout* _Nullable layout, UInt32 flags,
    ExtAudioFileRef _Nullable* _Nonnull file);
OSStatus ExtAudioFileSetProperty(
    ExtAudioFileRef file, ExtAudioFilePropertyID property, UInt32 size, const void* value);
OSStatus ExtAudioFileWriteAsync(
    ExtAudioFileRef file, UInt32 frames, const AudioBufferList* _Nullable samples);
OSStatus ExtAudioFileDispose(ExtAudioFileRef file);

#ifdef __cplusplus
}
#endif

CF_ASSUME_NONNULL_END
