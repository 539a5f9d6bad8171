// SPDX-License-Identifier: MIT
// What a poll costs: how often it asks the audio system and the desktop.
#include "tests/control/ControllerStory.h"

namespace fadeloom {
namespace {

class PollCost : public ControllerStory {
protected:
    // No sound is rendered: what is counted here are questions.
    PollCost() { world.audioSystem().setCycleInterval(0ms); }

    void playEverywhere(int apps)
    {
        for (int i = 0; i < apps; ++i)
            world.startPlaying(world.launchApp("App " + std::to_string(i)));
    }
    int readsOfAPoll()
    {
        world.audio().clearReadCounts();
        controller->poll();
        return world.audio().readCount();
    }
};

class PollCostFor : public PollCost, public testing::WithParamInterface<int> { };

TEST_P(PollCostFor, isThreeReadsForEachTappedProcessAndOneForTheList)
{
    playEverywhere(GetParam());
    start();
    ASSERT_EQ(state().apps->size(), GetParam());

    // Whether it plays, whether it uses the microphone, and the rate of the device that its tap plays on.
    EXPECT_EQ(readsOfAPoll(), 1 + 3 * GetParam());
}

TEST_P(PollCostFor, isTwoReadsForEachWhileCallsAreNotLookedFor)
{
    SettingsData settings;
    settings.focus.enabled = false;
    givenSettings(settings);
    playEverywhere(GetParam());
    start();

    EXPECT_EQ(readsOfAPoll(), 1 + 2 * GetParam());
}

TEST_P(PollCostFor, isTwoReadsMoreForEachNewProcess)
{
    start();
    world.setPermission(SimulatedCapturePermission::denied);  // No taps: the processes alone.
    playEverywhere(GetParam());

    EXPECT_EQ(readsOfAPoll(), 1 + 4 * GetParam());
    EXPECT_EQ(readsOfAPoll(), 1 + 2 * GetParam());
}

TEST_P(PollCostFor, asksForTheRunningAppsOnceAndOnlyForNewProcesses)
{
    start();
    playEverywhere(GetParam());
    const auto before = world.workspace().listCount();

    controller->poll();
    EXPECT_EQ(world.workspace().listCount(), before + 1);

    world.advance(1min);
    EXPECT_EQ(world.workspace().listCount(), before + 1);
}

INSTANTIATE_TEST_SUITE_P(
    Processes, PollCostFor, testing::Values(10, 1000), testing::PrintToStringParamName());

TEST_F(PollCost, aProcessWithoutAnOwnerIsLookedUpOnce)
{
    start();
    world.startPlaying(world.launchHelper(-1, "com.example.daemon"));
    world.runPosted();
    const auto before = world.workspace().listCount();

    world.advance(1min);

    EXPECT_EQ(world.workspace().listCount(), before);
}

TEST_F(PollCost, aBurstOfAnnouncementsCostsOnePoll)
{
    start();
    world.audio().clearReadCounts();

    playEverywhere(20);
    world.runPosted();

    EXPECT_LE(world.audio().readCount(kAudioHardwarePropertyProcessObjectList), 2);
}

}  // namespace
}  // namespace fadeloom
