// SPDX-License-Identifier: MIT
// The contract of audio processes: the list, lifetimes, and notifications.
#pragma once

#include "tests/platform/ContractFixture.h"

namespace fadeloom {

TEST_P(PlatformContract, aPlayerAppearsAsAProcessThatPlays)
{
    plugged("contract.a");
    makeDefault("contract.a");

    const AudioProcess process = playing();

    EXPECT_EQ(process.bundleID, world->bundleIDOf(process.pid));
    EXPECT_FALSE(process.isUsingMic);
    EXPECT_THAT(audio.processes(ReadMic::yes), ::testing::Contains(process).Times(1));
}

TEST_P(PlatformContract, everyPlayerHasAUniqueIdThatIsNeverReused)
{
    plugged("contract.a");
    makeDefault("contract.a");
    const AudioProcess first = playing();
    const AudioProcess second = playing();

    ended(first.pid);
    const AudioProcess third = playing();

    EXPECT_THAT((std::set{first.id, second.id, third.id}), ::testing::SizeIs(3));
}

TEST_P(PlatformContract, processesAreAnnouncedOnTheMainLoop)
{
    plugged("contract.a");
    makeDefault("contract.a");
    int calls = 0;
    bool isAlwaysCurrent = true;
    const auto subscription = audio.whenProcessesChange([&] {
        ++calls;
        isAlwaysCurrent = isAlwaysCurrent && world->mainLoop().isCurrent();
    });

    const AudioProcess process = playing();
    EXPECT_TRUE(world->waitUntil([&] { return calls > 0; }));
    world->settle();
    calls = 0;
    ended(process.pid);

    EXPECT_TRUE(world->waitUntil([&] { return calls > 0; }));
    EXPECT_TRUE(isAlwaysCurrent);
}

TEST_P(PlatformContract, pausingAndResumingAreAnnounced)
{
    plugged("contract.a");
    makeDefault("contract.a");
    const AudioProcess process = playing();
    int calls = 0;
    const auto subscription = audio.whenProcessesChange([&] { ++calls; });
    // Some systems watch a process only after it has been queried once.
    (void)audio.processes(ReadMic::no);
    world->settle();
    calls = 0;

    world->pausePlayer(process.pid);
    EXPECT_TRUE(world->waitUntil([&] { return calls > 0 && !reading.isPlaying(process.pid); }));
    calls = 0;
    world->resumePlayer(process.pid);

    EXPECT_TRUE(world->waitUntil([&] { return calls > 0 && reading.isPlaying(process.pid); }));
    EXPECT_EQ(reading.process(process.pid).id, process.id);
}

}  // namespace fadeloom
