// SPDX-License-Identifier: MIT
// Details of the simulated audio system beyond the common contract.
#include "platform/simulated/SimulatedPlatform.h"
#include "tests/platform/AudioReading.h"
#include "tests/platform/ContractTap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SimulatedAudioTest : public ::testing::Test {
protected:
    AudioProcessID playing(const std::string& name, float sample)
    {
        const ProcessID pid = world.launchApp(name);
        world.startPlaying(pid, SimulatedSignal::constant(sample));
        return world.audioWorld().audioProcessOf(pid);
    }

    SimulatedPlatform world{"/nowhere"};
    AudioReading reading{world.audio()};
};

TEST_F(SimulatedAudioTest, callsAreCountedByWhatTheyAsk)
{
    for (int i = 0; i < 1000; ++i)
        world.openAudio(world.launchApp("App " + std::to_string(i)));
    world.plug({.uid = "speakers", .name = "Speakers"});
    world.audio().clearCallCounts();

    EXPECT_EQ(world.audio().processes(ReadMic::no).size(), 1000U);
    EXPECT_TRUE(reading.hasDevice("speakers"));

    EXPECT_EQ(world.audio().callCount(AudioOperation::processes), 1);
    EXPECT_EQ(world.audio().callCount(AudioOperation::outputDevices), 1);
    EXPECT_EQ(world.audio().callCount(), 2);
}

TEST_F(SimulatedAudioTest, aMicrophoneIsNotAnOutputDevice)
{
    world.plug({.uid = "microphone", .name = "Microphone", .outputStreams = {}, .inputStreams = 1});

    EXPECT_THAT(world.audio().outputDevices(), IsEmpty());
    EXPECT_EQ(world.audio().defaultOutput(), std::nullopt);
}

TEST_F(SimulatedAudioTest, theMicrophoneIsReadOnlyWhenAskedFor)
{
    const auto pid = world.launchApp("Call");
    world.startUsingMic(pid);

    EXPECT_FALSE(world.audio().processes(ReadMic::no).front().isUsingMic);
    EXPECT_TRUE(world.audio().processes(ReadMic::yes).front().isUsingMic);
}

TEST_F(SimulatedAudioTest, aRateChangeIsAnnouncedOnce)
{
    world.plug({.uid = "speakers", .name = "Speakers"});
    world.runPosted();
    int calls = 0;
    const auto subscription = world.audio().whenOutputDevicesChange([&] { ++calls; });

    world.changeRate("speakers", 44100);
    world.changeRate("speakers", 44100);
    world.runPosted();

    EXPECT_EQ(world.audio().sampleRate(reading.device("speakers").id), 44100.0);
    EXPECT_EQ(calls, 1);
}

TEST_F(SimulatedAudioTest, soundKeepsToThePreferredPairOfItsDevice)
{
    world.plug({.uid = "interface",
        .name = "Interface",
        .outputStreams = {2, 2},
        .stereoPair = {.left = 3, .right = 4}});
    playing("Music", 0.5F);

    world.runCycle(16);

    EXPECT_EQ(world.heard("interface").channels, 4U);
    EXPECT_EQ(world.heard("interface").peak(1), 0.0F);
    EXPECT_EQ(world.heard("interface").peak(3), 0.5F);
    EXPECT_EQ(world.heard("interface").peak(4), 0.5F);
}

TEST_F(SimulatedAudioTest, onlyTheDefaultOutputIsHeardWithoutTaps)
{
    world.plug({.uid = "speakers", .name = "Speakers"});
    world.plug({.uid = "headphones", .name = "Headphones"});
    playing("Music", 0.5F);

    world.setDefaultOutput("headphones");
    world.runCycle(16);

    EXPECT_TRUE(world.heard("speakers").isSilent());
    EXPECT_EQ(world.heard("headphones").peak(2), 0.5F);
}

TEST_F(SimulatedAudioTest, everyReadingCanBeRefused)
{
    using enum AudioOperation;
    world.plug({.uid = "speakers", .name = "Speakers"});
    playing("Music", 0.5F);
    const auto speakers = reading.device("speakers").id;
    for (const auto operation : {processes, outputDevices, sampleRate, defaultOutput})
        world.refuse(operation, HowOften::once);

    EXPECT_THAT(world.audio().processes(ReadMic::no), IsEmpty());
    EXPECT_THAT(world.audio().outputDevices(), IsEmpty());
    EXPECT_EQ(world.audio().sampleRate(speakers), 0.0);
    EXPECT_EQ(world.audio().defaultOutput(), std::nullopt);

    EXPECT_EQ(world.audio().processes(ReadMic::no).size(), 1U);
    EXPECT_EQ(world.audio().outputDevices().size(), 1U);
    EXPECT_EQ(world.audio().sampleRate(speakers), 48000.0);
    EXPECT_EQ(world.audio().defaultOutput(), "speakers");
}

TEST_F(SimulatedAudioTest, everyChangeCanBeRefused)
{
    using enum AudioOperation;
    world.plug({.uid = "speakers", .name = "Speakers"});
    world.plug({.uid = "headphones", .name = "Headphones"});
    const auto music = playing("Music", 0.5F);
    for (const auto operation : {createTap, setTapProcesses, setDefaultOutput})
        world.refuse(operation, HowOften::once, -7);

    const ContractTap refused{world.audio(), {music}, reading.device("speakers")};
    ContractTap tap{world.audio(), {music}, reading.device("speakers")};
    ASSERT_TRUE(tap.isRunning());

    EXPECT_EQ(refused.error, (TapError{.step = "Create process tap", .status = -7}));
    EXPECT_FALSE(tap->setProcesses({}));
    EXPECT_FALSE(world.audio().setDefaultOutput(reading.device("headphones")));
    tap.end();
    EXPECT_THAT(world.audio().operations(),
        ElementsAre(createTap, createTap, setTapProcesses, setDefaultOutput, destroyTap));
}

TEST_F(SimulatedAudioTest, changesInOneTurnAreAnnouncedOnce)
{
    int calls = 0;
    const auto subscription = world.audio().whenProcessesChange([&] { ++calls; });

    playing("Music", 0.5F);
    playing("Game", 0.5F);
    world.runPosted();

    EXPECT_EQ(calls, 1);
}

TEST_F(SimulatedAudioTest, aTapOfAProcessThatIsGoneIsRefused)
{
    world.plug({.uid = "speakers", .name = "Speakers"});
    const AudioProcessID music = playing("Music", 0.5F);
    world.audioWorld().closeAudio(music);

    const ContractTap tap{world.audio(), {music}, reading.device("speakers")};

    EXPECT_TRUE(tap.error);
}

}  // namespace
}  // namespace fadeloom
