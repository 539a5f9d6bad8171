// SPDX-License-Identifier: MIT
// Devices, processes and listeners through the audio system interface.
#include "platform/macos/CoreAudioSystem.h"
#include "platform/macos/HAL.h"
#include "platform/macos/OutputDevices.h"
#include "platform/macos/PropertyListener.h"
#include "tests/macos/doubles/AudioWorld.h"
#include "tests/macos/doubles/Dispatch.h"
#include "tests/macos/doubles/Runtime.h"
#include "tests/platform/ContractTap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <utility>

namespace fadeloom {
namespace {

using doubles::journal;
using doubles::liveObjects;
using doubles::runQueues;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

class MacOSAudioSystem : public ::testing::Test {
protected:
    MacOSAudioSystem() { world.reset(); }
    ~MacOSAudioSystem() override { world.reset(); }

    doubles::AudioWorld& world = doubles::AudioWorld::current();
    CoreAudioSystem audio;
};

TEST_F(MacOSAudioSystem, offersDevicesWithOutputUniqueIdAndName)
{
    const auto speakers = world.plug({.uid = "speakers", .name = "Lautsprecher für den Tisch"});
    world.plug({.uid = "microphone", .inputs = {1}, .outputs = {}});
    world.plug({.uid = "nameless", .name = std::nullopt});

    EXPECT_THAT(
        audio.outputDevices(), ElementsAre(OutputDevice{speakers, "speakers", "Lautsprecher für den Tisch"}));
}

TEST_F(MacOSAudioSystem, neverOffersItsOwnAggregateDevices)
{
    const auto speakers = world.plug({.uid = "speakers"});
    const ContractTap tap(audio, {}, {.id = speakers, .uid = "speakers", .name = "A device"});
    ASSERT_TRUE(tap.isRunning());

    EXPECT_EQ(HAL::getArray(
                  kAudioObjectSystemObject, kAudioHardwarePropertyDevices, kAudioObjectPropertyScopeGlobal)
                  .size(),
        2U);
    EXPECT_EQ(audio.outputDevices().size(), 1U);
}

TEST_F(MacOSAudioSystem, hasNoDefaultOutputWithoutADevice)
{
    EXPECT_EQ(audio.defaultOutput(), std::nullopt);

    world.plug({.uid = "speakers"});

    EXPECT_EQ(audio.defaultOutput(), "speakers");
}

TEST_F(MacOSAudioSystem, usesTheDevicesPreferredStereoChannels)
{
    const auto interface = world.plug({.uid = "interface", .stereoPair = {3, 4}});
    const auto odd = world.plug({.uid = "odd", .stereoPair = {0, 0}});

    EXPECT_EQ(OutputDevices::stereoChannels(interface), (StereoChannels{3, 4}));
    EXPECT_EQ(OutputDevices::stereoChannels(odd), (StereoChannels{1, 2}));
    world.failNext("get dch2 outp of device", kAudioHardwareUnspecifiedError);
    EXPECT_EQ(OutputDevices::stereoChannels(interface), (StereoChannels{1, 2}));
}

TEST_F(MacOSAudioSystem, readsAProcessOnceAndWhatItDoesEveryTime)
{
    const auto process = world.addProcess(
        {.pid = 501, .bundleID = "com.example.player", .isRunningOutput = true, .isRunningInput = true});

    EXPECT_THAT(audio.processes(ReadMic::yes),
        ElementsAre(AudioProcess{process, 501, "com.example.player", true, true}));
    journal().clear();
    EXPECT_THAT(audio.processes(ReadMic::no),
        ElementsAre(AudioProcess{process, 501, "com.example.player", true, false}));

    EXPECT_THAT(journal(), ElementsAre("size prs# of system", "get prs# of system", "get piro of process"));
}

TEST_F(MacOSAudioSystem, readsAProcessWithoutPidOrBundle)
{
    const auto process = world.addProcess({.pid = 501, .bundleID = std::nullopt});
    world.failNext("get ppid of process", kAudioHardwareUnspecifiedError);

    EXPECT_THAT(audio.processes(ReadMic::no), ElementsAre(AudioProcess{process, -1, "", false, false}));
}

TEST_F(MacOSAudioSystem, readsAListAgainThatGrewWhileItWasRead)
{
    world.plug({.uid = "speakers"});
    world.failNext("get dev# of system", kAudioHardwareBadPropertySizeError);

    EXPECT_EQ(audio.outputDevices().size(), 1U);
}

TEST_F(MacOSAudioSystem, releasesEachTextThatItReads)
{
    const auto speakers = world.plug({.uid = "speakers", .name = "Speakers"});
    const std::size_t before = liveObjects();

    {
        const doubles::AutoreleasePool pool;
        EXPECT_EQ(HAL::string(speakers, kAudioObjectPropertyName), "Speakers");
    }

    EXPECT_EQ(liveObjects(), before);
}

TEST_F(MacOSAudioSystem, readsNoTextFromANumber)
{
    const auto speakers = world.addProcess({.pid = 501});

    EXPECT_EQ(HAL::string(speakers, kAudioProcessPropertyPID), std::nullopt);
}

TEST_F(MacOSAudioSystem, announcesAChangeOnTheMainQueueAndRemovesTheSameListener)
{
    int calls = 0;
    auto subscription = audio.whenOutputDevicesChange([&] { ++calls; });
    journal().clear();

    world.plug({.uid = "speakers"});
    EXPECT_EQ(calls, 0);
    runQueues();
    EXPECT_EQ(calls, 1);
    subscription.reset();

    EXPECT_THAT(journal(), UnorderedElementsAre("forget dev# of system", "forget srst of system"));
    EXPECT_THAT(world.listeners, IsEmpty());
}

TEST_F(MacOSAudioSystem, doesNotAnnounceACallInFlightWhenTheSubscriptionEnded)
{
    int calls = 0;
    auto subscription = audio.whenOutputDevicesChange([&] { ++calls; });

    world.plug({.uid = "speakers"});
    subscription.reset();
    runQueues();

    EXPECT_EQ(calls, 0);
}

TEST_F(MacOSAudioSystem, releasesARefusedListener)
{
    const auto held = std::make_shared<int>(1);
    world.failNext("listen to dev# of system", kAudioHardwareIllegalOperationError);

    const auto subscription = audio.whenOutputDevicesChange([held] { });

    EXPECT_FALSE(subscription);
    EXPECT_EQ(held.use_count(), 1);
    EXPECT_THAT(journal(), ElementsAre("listen to dev# of system"));
}

TEST_F(MacOSAudioSystem, givesTheStatusOfARefusedListener)
{
    world.failNext("listen to dev# of system", kAudioHardwareIllegalOperationError);

    const auto listener =
        PropertyListener::add(kAudioObjectSystemObject, HAL::address(kAudioHardwarePropertyDevices), [] { });

    ASSERT_FALSE(listener);
    EXPECT_EQ(listener.error(), OSStatus{kAudioHardwareIllegalOperationError});
}

TEST_F(MacOSAudioSystem, listensToEachProcessWhileItExistsAndThereAreSubscribers)
{
    int calls = 0;
    world.addProcess({.pid = 501});
    (void)audio.processes(ReadMic::no);
    EXPECT_THAT(world.listeners, IsEmpty());
    auto subscription = audio.whenProcessesChange([&] { ++calls; });
    (void)audio.processes(ReadMic::no);
    EXPECT_EQ(world.listeners.size(), 4U) << "the list, restarts, playing, using the microphone";

    world.change(501, [](doubles::Process& process) { process.isRunningOutput = true; });
    runQueues();
    EXPECT_GT(std::exchange(calls, 0), 0);
    world.change(501, [](doubles::Process& process) { process.isRunningInput = true; });
    runQueues();
    EXPECT_GT(std::exchange(calls, 0), 0);
    world.endProcess(501);
    runQueues();
    EXPECT_GT(calls, 0);
    (void)audio.processes(ReadMic::no);
    EXPECT_EQ(world.listeners.size(), 2U);

    world.addProcess({.pid = 502});
    (void)audio.processes(ReadMic::no);
    subscription.reset();
    EXPECT_THAT(world.listeners, IsEmpty());
}

TEST_F(MacOSAudioSystem, doesNotRetryARefusedListener)
{
    world.addProcess({.pid = 501});
    world.failNext("listen to piro of process", kAudioHardwareIllegalOperationError);
    const auto subscription = audio.whenProcessesChange([] { });
    (void)audio.processes(ReadMic::no);
    EXPECT_EQ(world.listeners.size(), 3U);

    (void)audio.processes(ReadMic::no);

    EXPECT_EQ(world.listeners.size(), 3U);
}

TEST_F(MacOSAudioSystem, aSubscriptionMayOutliveIt)
{
    std::optional<CoreAudioSystem> system(std::in_place);
    auto subscription = system->whenProcessesChange([] { });

    system.reset();
    subscription.reset();

    EXPECT_THAT(world.listeners, IsEmpty());
}

TEST_F(MacOSAudioSystem, asksForAnotherDefaultOutput)
{
    world.plug({.uid = "speakers"});
    const auto other = world.plug({.uid = "headphones"});

    EXPECT_TRUE(audio.setDefaultOutput({.id = other, .uid = "headphones", .name = "A device"}));
    world.settleProperties();
    EXPECT_EQ(audio.defaultOutput(), "headphones");

    world.failNext("set dOut of system", kAudioHardwareIllegalOperationError);
    EXPECT_FALSE(audio.setDefaultOutput({.id = other, .uid = "headphones", .name = "A device"}));
}

}  // namespace
}  // namespace fadeloom
