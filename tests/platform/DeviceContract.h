// SPDX-License-Identifier: MIT
// The contract of devices: what is listed, when it changes, and who is told.
#pragma once

#include "tests/platform/ContractFixture.h"

namespace fadeloom {

inline constexpr AudioObjectPropertyAddress deviceListAddress{kAudioHardwarePropertyDevices};
inline constexpr AudioObjectPropertyAddress defaultOutputAddress{kAudioHardwarePropertyDefaultOutputDevice};

TEST_P(PlatformContract, aPluggedDeviceSaysWhatItIs)
{
    const AudioObjectID device = plugged("contract.a", "Contract speakers");

    EXPECT_EQ(reading.text(device, kAudioObjectPropertyName), "Contract speakers");
    EXPECT_EQ(reading.list(device, kAudioDevicePropertyStreams, kAudioObjectPropertyScopeOutput).size(), 1U);
    EXPECT_THAT(reading.list(device, kAudioDevicePropertyStreams, kAudioObjectPropertyScopeInput),
        ::testing::IsEmpty());
    EXPECT_GE(reading.rate(device), 8000.0);
    EXPECT_THAT(reading.stereoPair(device), ::testing::ElementsAre(1, 2));
}

TEST_P(PlatformContract, aMonoDeviceNamesItsChannelTwice)
{
    const AudioObjectID device = plugged("contract.mono", "Contract mono", 1);

    EXPECT_THAT(reading.stereoPair(device), ::testing::ElementsAre(1, 1));
}

TEST_P(PlatformContract, aSurroundDeviceNamesTwoOfItsChannels)
{
    const AudioObjectID device = plugged("contract.surround", "Contract surround", 6);

    const auto [left, right] = reading.stereoPair(device);

    EXPECT_NE(left, right);
    EXPECT_TRUE(left >= 1 && left <= 6) << left;
    EXPECT_TRUE(right >= 1 && right <= 6) << right;
}

TEST_P(PlatformContract, anUnpluggedDeviceLeavesAStaleIdBehind)
{
    const AudioObjectID device = plugged("contract.a");

    unplugged("contract.a");

    EXPECT_THAT(reading.list(kAudioObjectSystemObject, kAudioHardwarePropertyDevices),
        ::testing::Not(::testing::Contains(device)));
    EXPECT_EQ(
        hardware.readText(device, {kAudioDevicePropertyDeviceUID}).error(), kAudioHardwareBadObjectError);
}

TEST_P(PlatformContract, aDeviceThatComesBackHasANewId)
{
    std::vector<AudioObjectID> ids;

    for (int i = 0; i < 4; ++i) {
        ids.push_back(plugged("contract.a"));
        unplugged("contract.a");
    }

    EXPECT_THAT(std::set(ids.begin(), ids.end()), ::testing::SizeIs(4));
}

TEST_P(PlatformContract, theDeviceListIsToldOnTheMainLoop)
{
    int calls = 0;
    bool isAlwaysCurrent = true;
    const auto subscription = hardware.listen(kAudioObjectSystemObject, deviceListAddress, [&] {
        ++calls;
        isAlwaysCurrent = isAlwaysCurrent && world->mainLoop().isCurrent();
    });
    ASSERT_TRUE(subscription.has_value());

    plugged("contract.a");
    EXPECT_TRUE(world->waitUntil([&] { return calls > 0; }));
    calls = 0;
    unplugged("contract.a");

    EXPECT_TRUE(world->waitUntil([&] { return calls > 0; }));
    EXPECT_TRUE(isAlwaysCurrent);
}

TEST_P(PlatformContract, anEndedSubscriptionIsNotToldAnyMore)
{
    int calls = 0;
    auto subscription = hardware.listen(kAudioObjectSystemObject, deviceListAddress, [&] { ++calls; });
    ASSERT_TRUE(subscription.has_value());

    subscription->reset();
    plugged("contract.a");
    world->settle();

    EXPECT_EQ(calls, 0);
}

TEST_P(PlatformContract, aSubscriptionThatEndsBeforeDeliveryIsNotTold)
{
    // Both are told of the same change; whoever is told first ends the other one.
    std::set<char> told;
    AudioResult<Subscription> first = std::unexpected{kAudioHardwareUnspecifiedError};
    AudioResult<Subscription> second = std::unexpected{kAudioHardwareUnspecifiedError};
    first = hardware.listen(kAudioObjectSystemObject, deviceListAddress, [&] {
        told.insert('a');
        second->reset();
    });
    second = hardware.listen(kAudioObjectSystemObject, deviceListAddress, [&] {
        told.insert('b');
        first->reset();
    });
    ASSERT_TRUE(first.has_value() && second.has_value());

    plugged("contract.a");
    world->settle();

    EXPECT_THAT(told, ::testing::SizeIs(1));
}

TEST_P(PlatformContract, aListenerMayEndItsOwnSubscription)
{
    int calls = 0;
    AudioResult<Subscription> subscription = std::unexpected{kAudioHardwareUnspecifiedError};
    subscription = hardware.listen(kAudioObjectSystemObject, deviceListAddress, [&] {
        ++calls;
        subscription->reset();
    });
    ASSERT_TRUE(subscription.has_value());

    plugged("contract.a");
    EXPECT_TRUE(world->waitUntil([&] { return calls > 0; }));
    plugged("contract.b");
    world->settle();

    EXPECT_EQ(calls, 1);
}

TEST_P(PlatformContract, theDefaultOutputFollowsTheWorldAndIsTold)
{
    plugged("contract.a");
    const AudioObjectID other = plugged("contract.b");
    makeDefault("contract.a");
    int calls = 0;
    const auto subscription =
        hardware.listen(kAudioObjectSystemObject, defaultOutputAddress, [&] { ++calls; });

    world->setDefaultOutput("contract.b");

    EXPECT_TRUE(world->waitUntil([&] { return reading.defaultOutput() == other && calls > 0; }));
}

TEST_P(PlatformContract, theDefaultOutputCanBeSet)
{
    plugged("contract.a");
    const AudioObjectID wanted = plugged("contract.b");
    makeDefault("contract.a");

    const AudioStatus status = hardware.writeProperty(
        kAudioObjectSystemObject, defaultOutputAddress, std::as_bytes(std::span{&wanted, 1}));

    EXPECT_EQ(status, kAudioHardwareNoError);
    EXPECT_TRUE(world->waitUntil([&] { return reading.defaultOutput() == wanted; }));
}

TEST_P(PlatformContract, theDefaultOutputCannotBeADeviceThatIsNot)
{
    const AudioObjectID gone = plugged("contract.b");
    plugged("contract.a");
    makeDefault("contract.a");
    unplugged("contract.b");

    const AudioStatus status = hardware.writeProperty(
        kAudioObjectSystemObject, defaultOutputAddress, std::as_bytes(std::span{&gone, 1}));
    world->settle();

    EXPECT_NE(status, kAudioHardwareNoError);
    EXPECT_EQ(reading.defaultOutput(), reading.device("contract.a"));
}

TEST_P(PlatformContract, unpluggingTheDefaultOutputMakesAnotherOneTheDefault)
{
    plugged("contract.a");
    plugged("contract.b");
    makeDefault("contract.b");

    unplugged("contract.b");

    EXPECT_TRUE(world->waitUntil([&] {
        const auto uid = reading.text(reading.defaultOutput(), kAudioDevicePropertyDeviceUID);
        return !uid.empty() && uid != "contract.b";
    }));
}

}  // namespace fadeloom
