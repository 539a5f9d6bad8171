// SPDX-License-Identifier: MIT
// Codes, keys and layouts of the platform in our declarations, compared with literal values.
//
// The two columns are the same number in two notations, so that a typo in either is detected.
#include "platform/AudioBuffers.h"
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
    std::uint32_t declared;
    std::string characters;
    std::uint32_t number;
};

#define CODE(name) #name, static_cast<std::uint32_t>(name)

const std::vector<Code> codes = {
    {CODE(kAudioObjectPropertyScopeGlobal), "glob", 0x676c6f62},
    {CODE(kAudioObjectPropertyScopeInput), "inpt", 0x696e7074},
    {CODE(kAudioObjectPropertyScopeOutput), "outp", 0x6f757470},
    {CODE(kAudioObjectPropertyName), "lnam", 0x6c6e616d},
    {CODE(kAudioHardwarePropertyDevices), "dev#", 0x64657623},
    {CODE(kAudioHardwarePropertyDefaultOutputDevice), "dOut", 0x644f7574},
    {CODE(kAudioHardwarePropertyProcessObjectList), "prs#", 0x70727323},
    {CODE(kAudioHardwarePropertyServiceRestarted), "srst", 0x73727374},
    {CODE(kAudioDevicePropertyDeviceIsAlive), "livn", 0x6c69766e},
    {CODE(kAudioDevicePropertyDeviceUID), "uid ", 0x75696420},
    {CODE(kAudioDevicePropertyNominalSampleRate), "nsrt", 0x6e737274},
    {CODE(kAudioDevicePropertyStreams), "stm#", 0x73746d23},
    {CODE(kAudioDevicePropertyPreferredChannelsForStereo), "dch2", 0x64636832},
    {CODE(kAudioDevicePropertyIOProcStreamUsage), "suse", 0x73757365},
    {CODE(kAudioProcessPropertyPID), "ppid", 0x70706964},
    {CODE(kAudioProcessPropertyBundleID), "pbid", 0x70626964},
    {CODE(kAudioProcessPropertyIsRunningInput), "piri", 0x70697269},
    {CODE(kAudioProcessPropertyIsRunningOutput), "piro", 0x7069726f},
    {CODE(kAudioTapPropertyFormat), "tfmt", 0x74666d74},
    {CODE(kAudioTapPropertyDescription), "tdsc", 0x74647363},
    {CODE(kAudioHardwareNotRunningError), "stop", 0x73746f70},
    {CODE(kAudioHardwareUnspecifiedError), "what", 0x77686174},
    {CODE(kAudioHardwareUnknownPropertyError), "who?", 0x77686f3f},
    {CODE(kAudioHardwareBadPropertySizeError), "!siz", 0x2173697a},
    {CODE(kAudioHardwareIllegalOperationError), "nope", 0x6e6f7065},
    {CODE(kAudioHardwareBadObjectError), "!obj", 0x216f626a},
    {CODE(kAudioHardwareBadDeviceError), "!dev", 0x21646576},
    {CODE(kAudioHardwareUnsupportedOperationError), "unop", 0x756e6f70},
    {CODE(kAudioFormatLinearPCM), "lpcm", 0x6c70636d},
    {CODE(kAudioFileUnsupportedDataFormatError), "fmt?", 0x666d743f},
    {CODE(kAudioFileWAVEType), "WAVE", 0x57415645},
    {CODE(kExtAudioFileProperty_ClientDataFormat), "cfmt", 0x63666d74},
};

TEST(MacOSLiterals, codesAreTheirFourCharacters)
{
    for (const Code& code : codes) {
        EXPECT_EQ(code.declared, code.number) << code.name;
        EXPECT_EQ(doubles::characters(code.number), code.characters) << code.name;
    }
}

struct Number {
    std::string name;
    std::int64_t declared;
    std::int64_t number;
};

#define NUMBER(name) #name, static_cast<std::int64_t>(name)

const std::vector<Number> numbers = {
    {NUMBER(kAudioObjectUnknown), 0},
    {NUMBER(kAudioObjectSystemObject), 1},
    {NUMBER(kAudioObjectPropertyElementMain), 0},
    {NUMBER(kAudioHardwareNoError), 0},
    {NUMBER(kAudioFormatFlagIsFloat), 1},
    {NUMBER(kAudioFormatFlagIsSignedInteger), 4},
    {NUMBER(kAudioFormatFlagIsPacked), 8},
    {NUMBER(kAudioFormatFlagIsNonInterleaved), 32},
    {NUMBER(kExtAudioFileError_InvalidOperationOrder), -66565},
    {NUMBER(kExtAudioFileError_InvalidDataFormat), -66566},
    {NUMBER(kExtAudioFileError_AsyncWriteBufferOverflow), -66570},
    {NUMBER(CATapMutedWhenTapped), 2},
    {NUMBER(kAudioFileFlags_EraseFile), 1},
    {NUMBER(SMAppServiceStatusNotRegistered), 0},
    {NUMBER(SMAppServiceStatusEnabled), 1},
    {NUMBER(SMAppServiceStatusRequiresApproval), 2},
    {NUMBER(SMAppServiceStatusNotFound), 3},
    {NUMBER(NSApplicationActivationPolicyRegular), 0},
    {NUMBER(NSApplicationActivationPolicyAccessory), 1},
    {NUMBER(NSApplicationActivationPolicyProhibited), 2},
    {NUMBER(NSEventTypeRightMouseUp), 4},
    {NUMBER(NSEventModifierFlagControl), 0x40000},
    {NUMBER(NSAlertFirstButtonReturn), 1000},
    {NUMBER(NSModalResponseOK), 1},
    {NUMBER(NSRectEdgeMinY), 1},
    {NUMBER(NSPopoverBehaviorTransient), 1},
    {NUMBER(NSApplicationSupportDirectory), 14},
    {NUMBER(NSMusicDirectory), 18},
    {NUMBER(NSCachesDirectory), 13},
};

TEST(MacOSLiterals, constantsHaveTheirValues)
{
    for (const Number& each : numbers) {
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
    EXPECT_EQ(offsetof(::AudioStreamBasicDescription, mFormatID), 8U);
    EXPECT_EQ(offsetof(::AudioStreamBasicDescription, mChannelsPerFrame), 28U);
    EXPECT_EQ(offsetof(::AudioStreamBasicDescription, mBitsPerChannel), 32U);

    EXPECT_EQ(sizeof(::AudioHardwareIOProcStreamUsage), 16U);
    EXPECT_EQ(offsetof(::AudioHardwareIOProcStreamUsage, mNumberStreams), 8U);
    EXPECT_EQ(offsetof(::AudioHardwareIOProcStreamUsage, mStreamIsOn), 12U);

    EXPECT_EQ(sizeof(::AudioTimeStamp), 64U);
    EXPECT_EQ(offsetof(::AudioTimeStamp, mFlags), 56U);
    EXPECT_EQ(sizeof(::SMPTETime), 24U);
}

}  // namespace
}  // namespace fadeloom
