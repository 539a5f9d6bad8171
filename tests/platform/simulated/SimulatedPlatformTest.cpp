// SPDX-License-Identifier: MIT
// The world in memory, told as short stories.
#include "platform/simulated/SimulatedPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;

/// Copies the last input buffer, which is the tap's, to the first output buffer at half its level.
class HalvingProc final : public AudioIOProc {
public:
    void render(AudioBuffers input, AudioBuffers output) noexcept override
    {
        ++cycles;
        const auto* from = static_cast<const float*>(input.back().data);
        auto* to = static_cast<float*>(output.front().data);
        for (std::size_t i = 0; i < output.front().byteSize / sizeof(float); ++i)
            to[i] = from[i] / 2;
    }

    int cycles = 0;
};

class SimulatedPlatformTest : public ::testing::Test {
protected:
    /// Builds tap, aggregate and IO procedure for a process that plays, and starts them.
    void tapAndStart(AudioObjectID process, const std::string& output)
    {
        auto& audio = world.audio();
        tap = audio
                  .createProcessTap(
                      {{process}, "uuid", "Fadeloom Music", true, TapMuteBehavior::mutedWhenTapped})
                  .value();
        aggregate = audio
                        .createAggregateDevice({"Fadeloom Music", "com.fadeloom.tap.1", output, true, false,
                            true, {output}, {{"uuid", true}}})
                        .value();
        procID = audio.createIOProc(aggregate, proc).value();
        ASSERT_EQ(audio.start(aggregate, procID), kAudioHardwareNoError);
    }

    SimulatedPlatform world{"/nowhere"};
    HalvingProc proc;
    AudioObjectID tap = 0;
    AudioObjectID aggregate = 0;
    AudioDeviceIOProcID procID = nullptr;
};

TEST_F(SimulatedPlatformTest, playingAppIsHeardOnTheDefaultOutput)
{
    world.plug({.uid = "speakers", .name = "Speakers"});
    world.startPlaying(world.launchApp("Music"), SimulatedSignal::constant(0.5F, 0.25F));

    world.runCycle(64);

    EXPECT_EQ(world.heard("speakers").at(63, 1), 0.5F);
    EXPECT_EQ(world.heard("speakers").at(63, 2), 0.25F);
}

TEST_F(SimulatedPlatformTest, tappedAppIsHeardThroughTheProcedureAlone)
{
    world.plug({.uid = "speakers", .name = "Speakers"});
    const auto music = world.launchApp("Music");
    world.startPlaying(music, SimulatedSignal::constant(0.5F));
    world.startPlaying(world.launchApp("Game"), SimulatedSignal::constant(0.125F));

    tapAndStart(world.audioSystem().audioObjectOf(music), "speakers");
    world.runCycle(64);

    EXPECT_EQ(world.heard("speakers").at(10, 1), 0.25F + 0.125F);
}

TEST_F(SimulatedPlatformTest, stoppedProcedureGivesTheAppItsOwnSoundBack)
{
    world.plug({.uid = "speakers", .name = "Speakers"});
    const auto music = world.launchApp("Music");
    world.startPlaying(music, SimulatedSignal::constant(0.5F));
    tapAndStart(world.audioSystem().audioObjectOf(music), "speakers");

    EXPECT_EQ(world.audio().stop(aggregate, procID), kAudioHardwareNoError);
    world.runCycle(64);

    EXPECT_EQ(world.heard("speakers").at(10, 1), 0.5F);
    EXPECT_EQ(proc.cycles, 0);
}

TEST_F(SimulatedPlatformTest, advancingRunsACycleEveryTenMillisecondsWhileSomethingPlays)
{
    world.plug({.uid = "speakers", .name = "Speakers"});
    const auto music = world.launchApp("Music");
    world.startPlaying(music);
    tapAndStart(world.audioSystem().audioObjectOf(music), "speakers");

    world.advance(1s);

    EXPECT_EQ(proc.cycles, 100);
    EXPECT_EQ(world.heard("speakers").frames, 480U);
}

TEST_F(SimulatedPlatformTest, refusedOnceFailsOnceWithItsStatus)
{
    world.plug({.uid = "speakers", .name = "Speakers"});
    world.refuse(AudioOperation::createProcessTap, HowOften::once, -50);

    const auto first = world.audio().createProcessTap({});
    const auto second = world.audio().createProcessTap({});

    EXPECT_EQ(first.error(), -50);
    EXPECT_TRUE(second.has_value());
}

TEST_F(SimulatedPlatformTest, journalTellsCallsInOrder)
{
    world.plug({.uid = "speakers", .name = "Speakers"});
    const auto music = world.launchApp("Music");
    world.startPlaying(music);

    tapAndStart(world.audioSystem().audioObjectOf(music), "speakers");

    EXPECT_THAT(world.audio().operations(),
        ElementsAre(AudioOperation::createProcessTap, AudioOperation::createAggregateDevice,
            AudioOperation::createIOProc, AudioOperation::start));
    EXPECT_EQ(world.audio().aggregateDescriptions().back().uid, "com.fadeloom.tap.1");
}

}  // namespace
}  // namespace fadeloom
