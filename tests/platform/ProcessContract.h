// SPDX-License-Identifier: MIT
// The contract of audio processes: who they are, whether they play, and who is told.
#pragma once

#include "tests/platform/ContractFixture.h"

namespace fadeloom {

inline constexpr AudioObjectPropertyAddress processListAddress{kAudioHardwarePropertyProcessObjectList};
inline constexpr AudioObjectPropertyAddress isRunningOutputAddress{kAudioProcessPropertyIsRunningOutput};

TEST_P(PlatformContract, aPlayerAppearsAsAProcessThatPlays)
{
    plugged("contract.a");
    makeDefault("contract.a");

    const auto [pid, process] = playing();

    EXPECT_EQ(reading.text(process, kAudioProcessPropertyBundleID), world->bundleIDOf(pid));
    EXPECT_EQ(reading.value<std::uint32_t>(process, kAudioProcessPropertyIsRunningInput), 0U);
    EXPECT_THAT(reading.list(kAudioObjectSystemObject, kAudioHardwarePropertyProcessObjectList),
        ::testing::Contains(process).Times(1));
}

TEST_P(PlatformContract, anEndedPlayerLeavesAStaleIdBehind)
{
    plugged("contract.a");
    makeDefault("contract.a");
    const auto [pid, process] = playing();

    world->endPlayer(pid);

    EXPECT_TRUE(world->waitUntil([&, ended = pid] { return reading.process(ended) == kAudioObjectUnknown; }));
    EXPECT_EQ(reading.statusOfReading(process, {kAudioProcessPropertyPID}, 4), kAudioHardwareBadObjectError);
}

TEST_P(PlatformContract, everyPlayerHasAnIdOfItsOwnThatNeverComesAgain)
{
    plugged("contract.a");
    makeDefault("contract.a");
    const auto [first, firstProcess] = playing();
    const auto [second, secondProcess] = playing();

    world->endPlayer(first);
    EXPECT_TRUE(
        world->waitUntil([&, ended = first] { return reading.process(ended) == kAudioObjectUnknown; }));
    const auto [third, thirdProcess] = playing();

    EXPECT_THAT((std::set{firstProcess, secondProcess, thirdProcess}), ::testing::SizeIs(3));
}

TEST_P(PlatformContract, theProcessListIsToldOnTheMainLoop)
{
    plugged("contract.a");
    makeDefault("contract.a");
    int calls = 0;
    bool isAlwaysCurrent = true;
    const auto subscription = hardware.listen(kAudioObjectSystemObject, processListAddress, [&] {
        ++calls;
        isAlwaysCurrent = isAlwaysCurrent && world->mainLoop().isCurrent();
    });

    const auto [pid, process] = playing();
    EXPECT_TRUE(world->waitUntil([&] { return calls > 0; }));
    world->settle();
    calls = 0;
    world->endPlayer(pid);

    EXPECT_TRUE(world->waitUntil([&] { return calls > 0; }));
    EXPECT_TRUE(isAlwaysCurrent);
}

TEST_P(PlatformContract, pausingAndPlayingOnAreTold)
{
    plugged("contract.a");
    makeDefault("contract.a");
    const auto [pid, process] = playing();
    int calls = 0;
    const auto subscription = hardware.listen(process, isRunningOutputAddress, [&] { ++calls; });
    ASSERT_TRUE(subscription.has_value());

    world->pausePlayer(pid);
    EXPECT_TRUE(world->waitUntil([&, paused = process] { return calls > 0 && !reading.isPlaying(paused); }));
    calls = 0;
    world->resumePlayer(pid);

    EXPECT_TRUE(world->waitUntil([&, resumed = process] { return calls > 0 && reading.isPlaying(resumed); }));
    EXPECT_EQ(reading.process(pid), process);
}

TEST_P(PlatformContract, aSubscriptionMayOutliveItsProcess)
{
    plugged("contract.a");
    makeDefault("contract.a");
    const auto [pid, process] = playing();
    auto subscription = hardware.listen(process, isRunningOutputAddress, [] { });
    ASSERT_TRUE(subscription.has_value());

    world->endPlayer(pid);
    EXPECT_TRUE(world->waitUntil([&, ended = pid] { return reading.process(ended) == kAudioObjectUnknown; }));
    subscription->reset();

    EXPECT_EQ(hardware.listen(process, isRunningOutputAddress, [] { }).error(), kAudioHardwareBadObjectError);
}

}  // namespace fadeloom
