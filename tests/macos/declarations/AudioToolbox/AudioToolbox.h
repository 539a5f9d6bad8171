// SPDX-License-Identifier: MIT
// What we use of extended audio files, declared by us.
#pragma once

#include <CoreAudio/CoreAudioTypes.h>

typedef struct OpaqueExtAudioFile* ExtAudioFileRef;
typedef UInt32 ExtAudioFilePropertyID;
typedef UInt32 AudioFileTypeID;
typedef struct AudioChannelLayout AudioChannelLayout;

enum { kAudioFileWAVEType = 'WAVE' };
enum { kAudioFileFlags_EraseFile = 1 };
enum { kExtAudioFileProperty_ClientDataFormat = 'cfmt' };
enum { kAudioFileUnsupportedDataFormatError = 'fmt?' };
enum {
    kExtAudioFileError_InvalidOperationOrder = -66565,
    kExtAudioFileError_InvalidDataFormat = -66566,
    kExtAudioFileError_AsyncWriteTooLarge = -66569,
    kExtAudioFileError_AsyncWriteBufferOverflow = -66570
};

#ifdef __cplusplus
extern "C" {
#endif

OSStatus ExtAudioFileCreateWithURL(CFURLRef location, AudioFileTypeID type,
    const AudioStreamBasicDescription* format, const AudioChannelLayout* layout, UInt32 flags,
    ExtAudioFileRef* file);
OSStatus ExtAudioFileSetProperty(
    ExtAudioFileRef file, ExtAudioFilePropertyID property, UInt32 size, const void* value);
OSStatus ExtAudioFileWriteAsync(ExtAudioFileRef file, UInt32 frames, const AudioBufferList* samples);
OSStatus ExtAudioFileDispose(ExtAudioFileRef file);

#ifdef __cplusplus
}
#endif
