// SPDX-License-Identifier: MIT
// The cost of a poll: how often it queries the audio system and the desktop.
#include "tests/control/ControllerStory.h"

namespace fadeloom {
namespace {

class PollCost : public ControllerStory {
protected:
    // No audio is rendered: only queries are counted.
    PollCost() { world.audioWorld().setCycleInterval(0ms); }

    void playEverywhere(int apps)
    {
        for (int i = 0; i < apps; ++i)
            world.startPlaying(world.launchApp("App " + std::to_string(i)));
    }
    int callsOfAPoll()
    {
        world.audio().clearCallCounts();
        controller->poll();
        return world.audio().callCount();
    }
};

class PollCostFor : public PollCost, public testing::WithParamInterface<int> { };

TEST_P(PollCostFor, isOneCallForAllProcessesAndOneForTheRateOfEachTap)
{
    playEverywhere(GetParam());
    start();
    ASSERT_EQ(state().apps->size(), GetParam());

    EXPECT_EQ(callsOfAPoll(), 1 + GetParam());
}

TEST_P(PollCostFor, isOneCallHoweverManyProcessesAreNew)
{
    start();
    world.setPermission(SimulatedCapturePermission::denied);  // No taps: only the processes.
    playEverywhere(GetParam());

    EXPECT_EQ(callsOfAPoll(), 1);
    EXPECT_EQ(callsOfAPoll(), 1);
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
    world.audio().clearCallCounts();

    playEverywhere(20);
    world.runPosted();

    EXPECT_LE(world.audio().callCount(AudioOperation::processes), 2);
}

}  // namespace
}  // namespace fadeloom
