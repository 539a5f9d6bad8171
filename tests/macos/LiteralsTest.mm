// SPDX-License-Identifier: MIT
// Codes, keys and layouts of the platform against literal values: ours and those that our declarations say.
//
// Two columns are the same number in two notations, so that a slip of the pen in either is seen.
#include "platform/AudioBuffers.h"
#include "platform/AudioFiles.h"
#include "platform/macos/TccPermission.h"
#include "tests/macos/doubles/AudioWorld.h"

#import <AppKit/AppKit.h>
#import <AudioToolbox/AudioToolbox.h>
#import <ServiceManagement/ServiceManagement.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>

namespace fadeloom {
namespace {

struct Code {
    std::string name;
    std::uint32_t ours;
    std::uint32_t declared;
    std::string characters;
    std::uint32_t number;
};

#define BOTH(name) #name, static_cast<std::uint32_t>(fadeloom::name), static_cast<std::uint32_t>(::name)
#define THEIRS(name) #name, static_cast<std::uint32_t>(::name), static_cast<std::uint32_t>(::name)

const std::vector<Code> codes = {
    {THEIRS(kAudioObjectPropertyScopeGlobal), "glob", 0x676c6f62},
    {THEIRS(kAudioObjectPropertyScopeInput), "inpt", 0x696e7074},
    {THEIRS(kAudioObjectPropertyScopeOutput), "outp", 0x6f757470},
    {THEIRS(kAudioObjectPropertyName), "lnam", 0x6c6e616d},
    {THEIRS(kAudioHardwarePropertyDevices), "dev#", 0x64657623},
    {THEIRS(kAudioHardwarePropertyDefaultOutputDevice), "dOut", 0x644f7574},
    {THEIRS(kAudioHardwarePropertyProcessObjectList), "prs#", 0x70727323},
    {THEIRS(kAudioHardwarePropertyServiceRestarted), "srst", 0x73727374},
    {THEIRS(kAudioDevicePropertyDeviceIsAlive), "livn", 0x6c69766e},
    {THEIRS(kAudioDevicePropertyDeviceUID), "uid ", 0x75696420},
    {THEIRS(kAudioDevicePropertyNominalSampleRate), "nsrt", 0x6e737274},
    {THEIRS(kAudioDevicePropertyStreams), "stm#", 0x73746d23},
    {THEIRS(kAudioDevicePropertyPreferredChannelsForStereo), "dch2", 0x64636832},
    {THEIRS(kAudioDevicePropertyIOProcStreamUsage), "suse", 0x73757365},
    {THEIRS(kAudioProcessPropertyPID), "ppid", 0x70706964},
    {THEIRS(kAudioProcessPropertyBundleID), "pbid", 0x70626964},
    {THEIRS(kAudioProcessPropertyIsRunningInput), "piri", 0x70697269},
    {THEIRS(kAudioProcessPropertyIsRunningOutput), "piro", 0x7069726f},
    {THEIRS(kAudioTapPropertyFormat), "tfmt", 0x74666d74},
    {THEIRS(kAudioTapPropertyDescription), "tdsc", 0x74647363},
    {BOTH(kAudioHardwareNotRunningError), "stop", 0x73746f70},
    {BOTH(kAudioHardwareUnspecifiedError), "what", 0x77686174},
    {BOTH(kAudioHardwareUnknownPropertyError), "who?", 0x77686f3f},
    {BOTH(kAudioHardwareBadPropertySizeError), "!siz", 0x2173697a},
    {BOTH(kAudioHardwareIllegalOperationError), "nope", 0x6e6f7065},
    {BOTH(kAudioHardwareBadObjectError), "!obj", 0x216f626a},
    {BOTH(kAudioHardwareBadDeviceError), "!dev", 0x21646576},
    {BOTH(kAudioHardwareUnsupportedOperationError), "unop", 0x756e6f70},
    {BOTH(kAudioFormatLinearPCM), "lpcm", 0x6c70636d},
    {BOTH(kAudioFileUnsupportedDataFormatError), "fmt?", 0x666d743f},
    {THEIRS(kAudioFileWAVEType), "WAVE", 0x57415645},
    {THEIRS(kExtAudioFileProperty_ClientDataFormat), "cfmt", 0x63666d74},
};

TEST(MacOSLiterals, codesAreTheirFourCharacters)
{
    for (const Code& code : codes) {
        EXPECT_EQ(code.ours, code.number) << code.name;
        EXPECT_EQ(code.declared, code.number) << code.name;
        EXPECT_EQ(doubles::characters(code.number), code.characters) << code.name;
    }
}

struct Number {
    std::string name;
    std::int64_t ours;
    std::int64_t declared;
    std::int64_t number;
};

#define BOTH_NUMBERS(name) #name, static_cast<std::int64_t>(fadeloom::name), static_cast<std::int64_t>(::name)
#define THEIR_NUMBER(name) #name, static_cast<std::int64_t>(::name), static_cast<std::int64_t>(::name)

const std::vector<Number> numbers = {
    {THEIR_NUMBER(kAudioObjectUnknown), 0},
    {THEIR_NUMBER(kAudioObjectSystemObject), 1},
    {THEIR_NUMBER(kAudioObjectPropertyElementMain), 0},
    {BOTH_NUMBERS(kAudioHardwareNoError), 0},
    {BOTH_NUMBERS(kAudioFormatFlagIsFloat), 1},
    {BOTH_NUMBERS(kAudioFormatFlagIsSignedInteger), 4},
    {BOTH_NUMBERS(kAudioFormatFlagIsPacked), 8},
    {BOTH_NUMBERS(kAudioFormatFlagIsNonInterleaved), 32},
    {BOTH_NUMBERS(kExtAudioFileError_InvalidOperationOrder), -66565},
    {BOTH_NUMBERS(kExtAudioFileError_InvalidDataFormat), -66566},
    {BOTH_NUMBERS(kExtAudioFileError_AsyncWriteBufferOverflow), -66570},
    {THEIR_NUMBER(CATapMutedWhenTapped), 2},
    {THEIR_NUMBER(kAudioFileFlags_EraseFile), 1},
    {THEIR_NUMBER(SMAppServiceStatusNotRegistered), 0},
    {THEIR_NUMBER(SMAppServiceStatusEnabled), 1},
    {THEIR_NUMBER(SMAppServiceStatusRequiresApproval), 2},
    {THEIR_NUMBER(SMAppServiceStatusNotFound), 3},
    {THEIR_NUMBER(NSApplicationActivationPolicyRegular), 0},
    {THEIR_NUMBER(NSApplicationActivationPolicyAccessory), 1},
    {THEIR_NUMBER(NSApplicationActivationPolicyProhibited), 2},
    {THEIR_NUMBER(NSEventTypeRightMouseUp), 4},
    {THEIR_NUMBER(NSEventModifierFlagControl), 0x40000},
    {THEIR_NUMBER(NSAlertFirstButtonReturn), 1000},
    {THEIR_NUMBER(NSModalResponseOK), 1},
    {THEIR_NUMBER(NSRectEdgeMinY), 1},
    {THEIR_NUMBER(NSPopoverBehaviorTransient), 1},
    {THEIR_NUMBER(NSApplicationSupportDirectory), 14},
    {THEIR_NUMBER(NSMusicDirectory), 18},
    {THEIR_NUMBER(NSCachesDirectory), 13},
};

TEST(MacOSLiterals, numbersAreWhatTheyAre)
{
    for (const Number& each : numbers) {
        EXPECT_EQ(each.ours, each.number) << each.name;
        EXPECT_EQ(each.declared, each.number) << each.name;
    }
}

TEST(MacOSLiterals, keysOfAnAggregateDevice)
{
    EXPECT_STREQ(kAudioAggregateDeviceUIDKey, "uid");
    EXPECT_STREQ(kAudioAggregateDeviceNameKey, "name");
    EXPECT_STREQ(kAudioAggregateDeviceMainSubDeviceKey, "master");
    EXPECT_STREQ(kAudioAggregateDeviceIsPrivateKey, "private");
    EXPECT_STREQ(kAudioAggregateDeviceIsStackedKey, "stacked");
    EXPECT_STREQ(kAudioAggregateDeviceSubDeviceListKey, "subdevices");
    EXPECT_STREQ(kAudioAggregateDeviceTapListKey, "taps");
    EXPECT_STREQ(kAudioAggregateDeviceTapAutoStartKey, "tapautostart");
    EXPECT_STREQ(kAudioSubDeviceUIDKey, "uid");
    EXPECT_STREQ(kAudioSubTapUIDKey, "uid");
    EXPECT_STREQ(kAudioSubTapDriftCompensationKey, "drift");
}

TEST(MacOSLiterals, pathsAndNamesOfPrivateFunctions)
{
    EXPECT_STREQ(TccPermission::framework, "/System/Library/PrivateFrameworks/TCC.framework/Versions/A/TCC");
}

TEST(MacOSLiterals, layoutsOfRecords)
{
    EXPECT_EQ(sizeof(::AudioObjectPropertyAddress), 12U);

    EXPECT_EQ(sizeof(::AudioBuffer), 16U);
    EXPECT_EQ(sizeof(::AudioBufferList), 24U);
    EXPECT_EQ(offsetof(::AudioBufferList, mBuffers), 8U);
    EXPECT_EQ(sizeof(fadeloom::AudioBuffer), 16U);
    EXPECT_EQ(offsetof(fadeloom::AudioBuffer, byteSize), 4U);
    EXPECT_EQ(offsetof(fadeloom::AudioBuffer, data), 8U);

    EXPECT_EQ(sizeof(::AudioStreamBasicDescription), 40U);
    EXPECT_EQ(sizeof(fadeloom::AudioStreamBasicDescription), 40U);
    EXPECT_EQ(offsetof(fadeloom::AudioStreamBasicDescription, formatID), 8U);
    EXPECT_EQ(offsetof(fadeloom::AudioStreamBasicDescription, channelsPerFrame), 28U);
    EXPECT_EQ(offsetof(fadeloom::AudioStreamBasicDescription, bitsPerChannel), 32U);

    EXPECT_EQ(sizeof(::AudioHardwareIOProcStreamUsage), 16U);
    EXPECT_EQ(offsetof(::AudioHardwareIOProcStreamUsage, mNumberStreams), 8U);
    EXPECT_EQ(offsetof(::AudioHardwareIOProcStreamUsage, mStreamIsOn), 12U);

    EXPECT_EQ(sizeof(::AudioTimeStamp), 64U);
    EXPECT_EQ(offsetof(::AudioTimeStamp, mFlags), 56U);
    EXPECT_EQ(sizeof(::SMPTETime), 24U);
}

}  // namespace
}  // namespace fadeloom
