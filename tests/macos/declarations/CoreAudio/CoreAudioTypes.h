// SPDX-License-Identifier: MIT
// Sample formats, buffers and times, declared by us.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

typedef UInt32 AudioFormatID;
typedef UInt32 AudioFormatFlags;

struct AudioBuffer {
    UInt32 mNumberChannels;
    UInt32 mDataByteSize;
    void* _Nullable mData;
};
typedef struct AudioBuffer AudioBuffer;

struct AudioBufferList {
    UInt32 mNumberBuffers;
    AudioBuffer mBuffers[1];  // Variable length.
};
typedef struct AudioBufferList AudioBufferList;

struct AudioStreamBasicDescription {
    Float64 mSampleRate;
    AudioFormatID mFormatID;
    AudioFormatFlags mFormatFlags;
    UInt32 mBytesPerPacket;
    UInt32 mFramesPerPacket;
    UInt32 mBytesPerFrame;
    UInt32 mChannelsPerFrame;
    UInt32 mBitsPerChannel;
    UInt32 mReserved;
};
typedef struct AudioStreamBasicDescription AudioStreamBasicDescription;

CF_ENUM(AudioFormatID){kAudioFormatLinearPCM = 'lpcm'};
CF_ENUM(AudioFormatFlags){
    kAudioFormatFlagIsFloat = 1U << 0,
    kAudioFormatFlagIsBigEndian = 1U << 1,
    kAudioFormatFlagIsSignedInteger = 1U << 2,
    kAudioFormatFlagIsPacked = 1U << 3,
    kAudioFormatFlagIsNonInterleaved = 1U << 5,
};

struct SMPTETime {
    SInt16 mSubframes;
    SInt16 mSubframeDivisor;
    UInt32 mCounter;
    UInt32 mType;
    UInt32 mFlags;
    SInt16 mHours;
    SInt16 mMinutes;
    SInt16 mSeconds;
    SInt16 mFrames;
};
typedef struct SMPTETime SMPTETime;

struct AudioTimeStamp {
    Float64 mSampleTime;
    UInt64 mHostTime;
    Float64 mRateScalar;
    UInt64 mWordClockTime;
    SMPTETime mSMPTETime;
    UInt32 mFlags;
    UInt32 mReserved;
};
typedef struct AudioTimeStamp AudioTimeStamp;

enum {
    kAudioTimeStampSampleTimeValid = 1U << 0,
    kAudioTimeStampHostTimeValid = 1U << 1,
    kAudioTimeStampSampleHostTimeValid = kAudioTimeStampSampleTimeValid | kAudioTimeStampHostTimeValid,
};
