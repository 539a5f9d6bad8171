// SPDX-License-Identifier: MIT
// The contract of properties: what is an error, and which one.
#pragma once

#include "tests/platform/ContractFixture.h"

namespace fadeloom {

TEST_P(PlatformContract, objectsThatNeverWereAreBadObjects)
{
    for (const AudioObjectID stranger : {kAudioObjectUnknown, AudioObjectID{4'000'000'000}}) {
        const AudioObjectPropertyAddress name{kAudioObjectPropertyName};
        const std::array<std::byte, 8> value{};

        EXPECT_EQ(hardware.propertySize(stranger, name).error(), kAudioHardwareBadObjectError);
        EXPECT_EQ(reading.statusOfReading(stranger, {kAudioDevicePropertyNominalSampleRate}, 8),
            kAudioHardwareBadObjectError);
        const auto text = hardware.readText(stranger, name);
        EXPECT_EQ(text.error(), kAudioHardwareBadObjectError);
        EXPECT_EQ(hardware.writeProperty(stranger, {kAudioDevicePropertyNominalSampleRate}, value),
            kAudioHardwareBadObjectError);
        EXPECT_EQ(hardware.listen(stranger, name, [] { }).error(), kAudioHardwareBadObjectError);
    }
}

TEST_P(PlatformContract, propertiesThatAnObjectDoesNotHaveAreUnknown)
{
    const AudioObjectID device = plugged("contract.a");
    const AudioObjectPropertyAddress nonsense{fourCharacterCode("zzzz")};

    for (const AudioObjectID object : {kAudioObjectSystemObject, device}) {
        EXPECT_EQ(hardware.propertySize(object, nonsense).error(), kAudioHardwareUnknownPropertyError);
        EXPECT_EQ(reading.statusOfReading(object, nonsense, 8), kAudioHardwareUnknownPropertyError);
        EXPECT_EQ(hardware.readText(object, nonsense).error(), kAudioHardwareUnknownPropertyError);
        EXPECT_EQ(hardware.listen(object, nonsense, [] { }).error(), kAudioHardwareUnknownPropertyError);
    }
    EXPECT_EQ(
        reading.statusOfReading(device, {kAudioProcessPropertyPID}, 4), kAudioHardwareUnknownPropertyError);
}

TEST_P(PlatformContract, valuesThatDoNotFitAreABadSize)
{
    const AudioObjectID device = plugged("contract.a");

    EXPECT_EQ(reading.statusOfReading(kAudioObjectSystemObject, {kAudioHardwarePropertyDevices}, 2),
        kAudioHardwareBadPropertySizeError);
    EXPECT_EQ(
        reading.statusOfReading(kAudioObjectSystemObject, {kAudioHardwarePropertyDefaultOutputDevice}, 3),
        kAudioHardwareBadPropertySizeError);
    EXPECT_EQ(reading.statusOfReading(device, {kAudioDevicePropertyNominalSampleRate}, 4),
        kAudioHardwareBadPropertySizeError);
}

TEST_P(PlatformContract, sizeSaysHowManyBytesAReadTakes)
{
    const AudioObjectID device = plugged("contract.a");

    const auto rateSize = hardware.propertySize(device, {kAudioDevicePropertyNominalSampleRate});
    const auto streamSize =
        hardware.propertySize(device, {kAudioDevicePropertyStreams, kAudioObjectPropertyScopeOutput});

    EXPECT_EQ(rateSize.value_or(0), sizeof(double));
    EXPECT_EQ(streamSize.value_or(0), sizeof(AudioObjectID));
}

TEST_P(PlatformContract, aValueOfTheWrongSizeIsNotWritten)
{
    plugged("contract.a");
    makeDefault("contract.a");
    const AudioObjectID before = reading.defaultOutput();
    const std::array<std::byte, 2> tooSmall{};

    const AudioStatus status = hardware.writeProperty(
        kAudioObjectSystemObject, {kAudioHardwarePropertyDefaultOutputDevice}, tooSmall);
    world->settle();

    EXPECT_EQ(status, kAudioHardwareBadPropertySizeError);
    EXPECT_EQ(reading.defaultOutput(), before);
}

}  // namespace fadeloom
