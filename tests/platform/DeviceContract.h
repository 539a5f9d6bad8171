// SPDX-License-Identifier: MIT
// The contract of devices: the list, its changes, and notifications.
#pragma once

#include "tests/platform/ContractFixture.h"

namespace fadeloom {

TEST_P(PlatformContract, aPluggedDeviceSaysWhatItIs)
{
    const OutputDevice device = plugged("contract.a", "Contract speakers");

    EXPECT_EQ(device.uid, "contract.a");
    EXPECT_EQ(device.name, "Contract speakers");
    EXPECT_GE(audio.sampleRate(device.id), 8000.0);
}

TEST_P(PlatformContract, anUnpluggedDeviceLeavesAStaleIdBehind)
{
    const OutputDevice device = plugged("contract.a");

    unplugged("contract.a");

    EXPECT_THAT(audio.outputDevices(), ::testing::Not(::testing::Contains(device)));
    EXPECT_EQ(audio.sampleRate(device.id), 0.0);
}

TEST_P(PlatformContract, anUnknownDeviceHasNoRate)
{
    EXPECT_EQ(audio.sampleRate(0), 0.0);
    EXPECT_EQ(audio.sampleRate(4'000'000'000), 0.0);
}

TEST_P(PlatformContract, aReconnectedDeviceHasANewId)
{
    std::vector<OutputDeviceID> ids;

    for (int i = 0; i < 4; ++i) {
        ids.push_back(plugged("contract.a").id);
        unplugged("contract.a");
    }

    EXPECT_THAT(std::set(ids.begin(), ids.end()), ::testing::SizeIs(4));
}

TEST_P(PlatformContract, theDevicesAreAnnouncedOnTheMainLoop)
{
    int calls = 0;
    bool isAlwaysCurrent = true;
    const auto subscription = audio.whenOutputDevicesChange([&] {
        ++calls;
        isAlwaysCurrent = isAlwaysCurrent && world->mainLoop().isCurrent();
    });

    plugged("contract.a");
    EXPECT_TRUE(world->waitUntil([&] { return calls > 0; }));
    calls = 0;
    unplugged("contract.a");

    EXPECT_TRUE(world->waitUntil([&] { return calls > 0; }));
    EXPECT_TRUE(isAlwaysCurrent);
}

TEST_P(PlatformContract, anEndedSubscriptionIsNoLongerNotified)
{
    int calls = 0;
    auto subscription = audio.whenOutputDevicesChange([&] { ++calls; });

    subscription.reset();
    plugged("contract.a");
    world->settle();

    EXPECT_EQ(calls, 0);
}

TEST_P(PlatformContract, aSubscriptionThatEndsBeforeDeliveryIsNotNotified)
{
    // Both observe the same change; whichever is called first ends the other one.
    std::set<char> told;
    Subscription first;
    Subscription second;
    first = audio.whenOutputDevicesChange([&] {
        told.insert('a');
        second.reset();
    });
    second = audio.whenOutputDevicesChange([&] {
        told.insert('b');
        first.reset();
    });

    plugged("contract.a");
    world->settle();

    EXPECT_THAT(told, ::testing::SizeIs(1));
}

TEST_P(PlatformContract, aListenerMayEndItsOwnSubscription)
{
    int calls = 0;
    Subscription subscription;
    subscription = audio.whenOutputDevicesChange([&] {
        ++calls;
        subscription.reset();
    });

    plugged("contract.a");
    EXPECT_TRUE(world->waitUntil([&] { return calls > 0; }));
    plugged("contract.b");
    world->settle();

    EXPECT_EQ(calls, 1);
}

TEST_P(PlatformContract, theDefaultOutputFollowsTheWorldAndIsAnnounced)
{
    plugged("contract.a");
    plugged("contract.b");
    makeDefault("contract.a");
    int calls = 0;
    const auto subscription = audio.whenDefaultOutputChanges([&] { ++calls; });

    world->setDefaultOutput("contract.b");

    EXPECT_TRUE(world->waitUntil([&] { return audio.defaultOutput() == "contract.b" && calls > 0; }));
}

TEST_P(PlatformContract, theDefaultOutputCanBeSet)
{
    plugged("contract.a");
    const OutputDevice wanted = plugged("contract.b");
    makeDefault("contract.a");

    EXPECT_TRUE(audio.setDefaultOutput(wanted));

    EXPECT_TRUE(world->waitUntil([&] { return audio.defaultOutput() == "contract.b"; }));
}

TEST_P(PlatformContract, theDefaultOutputCannotBeADeviceThatIsGone)
{
    const OutputDevice gone = plugged("contract.b");
    plugged("contract.a");
    makeDefault("contract.a");
    unplugged("contract.b");

    const bool isAccepted = audio.setDefaultOutput(gone);
    world->settle();

    EXPECT_FALSE(isAccepted);
    EXPECT_EQ(audio.defaultOutput(), "contract.a");
}

TEST_P(PlatformContract, unpluggingTheDefaultOutputMakesAnotherOneTheDefault)
{
    plugged("contract.a");
    plugged("contract.b");
    makeDefault("contract.b");

    unplugged("contract.b");

    EXPECT_TRUE(world->waitUntil([&] {
        const auto uid = audio.defaultOutput();
        return uid && *uid != "contract.b";
    }));
}

}  // namespace fadeloom
