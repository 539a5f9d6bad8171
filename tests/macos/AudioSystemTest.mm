// SPDX-License-Identifier: MIT
// Devices, processes and listeners as the rest of the program reads them.
#include "hal/AudioProcesses.h"
#include "hal/HAL.h"
#include "hal/OutputDevices.h"
#include "platform/macos/CoreAudioHardware.h"
#include "tests/macos/doubles/AudioWorld.h"
#include "tests/macos/doubles/Dispatch.h"
#include "tests/macos/doubles/Runtime.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using doubles::journal;
using doubles::liveObjects;
using doubles::runQueues;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MacOSAudioSystem : public ::testing::Test {
protected:
    MacOSAudioSystem() { world.reset(); }
    ~MacOSAudioSystem() override { world.reset(); }

    doubles::AudioWorld& world = doubles::AudioWorld::current();
    CoreAudioHardware hardware;
};

TEST_F(MacOSAudioSystem, offersDevicesWithOutputUniqueIdAndName)
{
    const auto speakers = world.plug({.uid = "speakers", .name = "Lautsprecher für den Tisch"});
    world.plug({.uid = "microphone", .inputs = {1}, .outputs = {}});
    world.plug({.uid = "nameless", .name = std::nullopt});

    EXPECT_THAT(OutputDevices::all(hardware),
        ElementsAre(OutputDevice{speakers, "speakers", "Lautsprecher für den Tisch"}));
}

TEST_F(MacOSAudioSystem, neverOffersItsOwnAggregateDevices)
{
    world.plug({.uid = "speakers"});
    const auto ours = hardware.createAggregateDevice({.name = "Fadeloom Music",
        .uid = "com.fadeloom.tap.1",
        .master = "speakers",
        .subDevices = {"speakers"},
        .taps = {}});
    ASSERT_TRUE(ours);

    EXPECT_THAT(HAL::getArray(hardware, kAudioObjectSystemObject, kAudioHardwarePropertyDevices,
                    kAudioObjectPropertyScopeGlobal),
        ::testing::Contains(*ours));
    EXPECT_EQ(OutputDevices::all(hardware).size(), 1U);
}

TEST_F(MacOSAudioSystem, hasNoDefaultOutputWithoutADevice)
{
    EXPECT_EQ(OutputDevices::defaultOutputUID(hardware), std::nullopt);

    world.plug({.uid = "speakers"});

    EXPECT_EQ(OutputDevices::defaultOutputUID(hardware), "speakers");
}

TEST_F(MacOSAudioSystem, placesStereoWhereTheDeviceWantsIt)
{
    const auto interface = world.plug({.uid = "interface", .stereoPair = {3, 4}});
    const auto odd = world.plug({.uid = "odd", .stereoPair = {0, 0}});

    EXPECT_EQ(OutputDevices::stereoChannels(hardware, interface), (StereoChannels{3, 4}));
    EXPECT_EQ(OutputDevices::stereoChannels(hardware, odd), (StereoChannels{1, 2}));
    world.failNext("get dch2 outp of device", kAudioHardwareUnspecifiedError);
    EXPECT_EQ(OutputDevices::stereoChannels(hardware, interface), (StereoChannels{1, 2}));
}

TEST_F(MacOSAudioSystem, readsAProcessOnceAndWhatItDoesEveryTime)
{
    const auto process = world.addProcess(
        {.pid = 501, .bundleID = "com.example.player", .isRunningOutput = true, .isRunningInput = true});
    AudioProcesses processes(hardware);

    EXPECT_THAT(processes.all(ReadMic::yes),
        ElementsAre(AudioProcess{process, 501, "com.example.player", true, true}));
    journal().clear();
    EXPECT_THAT(processes.all(ReadMic::no),
        ElementsAre(AudioProcess{process, 501, "com.example.player", true, false}));

    EXPECT_THAT(journal(), ElementsAre("size prs# of system", "get prs# of system", "get piro of process"));
}

TEST_F(MacOSAudioSystem, readsAProcessWithoutPidOrBundle)
{
    const auto process = world.addProcess({.pid = 501, .bundleID = std::nullopt});
    world.failNext("get ppid of process", kAudioHardwareUnspecifiedError);

    EXPECT_THAT(
        AudioProcesses(hardware).all(ReadMic::no), ElementsAre(AudioProcess{process, -1, "", false, false}));
}

TEST_F(MacOSAudioSystem, readsAListAgainThatGrewWhileItWasRead)
{
    world.plug({.uid = "speakers"});
    world.failNext("get dev# of system", kAudioHardwareBadPropertySizeError);

    EXPECT_EQ(OutputDevices::all(hardware).size(), 1U);
}

TEST_F(MacOSAudioSystem, releasesEachTextThatItReads)
{
    const auto speakers = world.plug({.uid = "speakers", .name = "Speakers"});
    const std::size_t before = liveObjects();

    {
        const doubles::AutoreleasePool pool;
        EXPECT_EQ(HAL::string(hardware, speakers, kAudioObjectPropertyName), "Speakers");
    }

    EXPECT_EQ(liveObjects(), before);
}

TEST_F(MacOSAudioSystem, readsNoTextFromANumber)
{
    const auto speakers = world.addProcess({.pid = 501});

    EXPECT_EQ(HAL::string(hardware, speakers, kAudioProcessPropertyPID), std::nullopt);
}

TEST_F(MacOSAudioSystem, tellsAChangeOnTheMainQueueAndTakesTheSameListenerBack)
{
    int calls = 0;
    auto subscription =
        hardware.listen(kAudioObjectSystemObject, {kAudioHardwarePropertyDevices}, [&] { ++calls; });
    ASSERT_TRUE(subscription);
    journal().clear();

    world.plug({.uid = "speakers"});
    EXPECT_EQ(calls, 0);
    runQueues();
    EXPECT_EQ(calls, 1);
    subscription->reset();

    EXPECT_THAT(journal(), ElementsAre("forget dev# of system"));
    EXPECT_THAT(world.listeners, IsEmpty());
}

TEST_F(MacOSAudioSystem, doesNotTellWhatWasOnItsWayWhenTheListenerEnded)
{
    int calls = 0;
    auto subscription =
        hardware.listen(kAudioObjectSystemObject, {kAudioHardwarePropertyDevices}, [&] { ++calls; });
    ASSERT_TRUE(subscription);

    world.plug({.uid = "speakers"});
    subscription->reset();
    runQueues();

    EXPECT_EQ(calls, 0);
}

TEST_F(MacOSAudioSystem, letsGoOfAListenerThatWasRefused)
{
    const auto held = std::make_shared<int>(1);
    world.failNext("listen to dev# of system", kAudioHardwareIllegalOperationError);

    const auto subscription =
        hardware.listen(kAudioObjectSystemObject, {kAudioHardwarePropertyDevices}, [held] { });

    ASSERT_FALSE(subscription);
    EXPECT_EQ(subscription.error(), kAudioHardwareIllegalOperationError);
    EXPECT_EQ(held.use_count(), 1);
    EXPECT_THAT(journal(), ElementsAre("listen to dev# of system"));
}

}  // namespace
}  // namespace fadeloom
