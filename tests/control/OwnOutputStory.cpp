// SPDX-License-Identifier: MIT
// Apps that have chosen a device themselves.
#include "tests/control/ControllerStory.h"

namespace fadeloom {
namespace {

class OwnOutputStory : public ControllerStory {
protected:
    OwnOutputStory() { start(); }

    const std::string player = "com.example.player";
};

TEST_F(OwnOutputStory, anAppThatChoseItsOwnDevicePlaysThere)
{
    const auto pid = launchPlaying("Player");
    change(player, [](auto& app) { app.volume = 0.5F; });

    world.chooseOutputs(pid, {"headphones"});
    world.runPosted();

    EXPECT_EQ(outputOf(player), "headphones");
    EXPECT_NEAR(heardAt("headphones"), source / 2, tolerance);
    EXPECT_TRUE(world.heard("speakers").isSilent());
}

TEST_F(OwnOutputStory, anAppOnTwoDevicesPlaysOnBothWithTheSameSettings)
{
    const auto pid = launchPlaying("Player");
    change(player, [](auto& app) { app.volume = 0.5F; });

    world.chooseOutputs(pid, {"headphones", "speakers"});
    world.runPosted();

    EXPECT_EQ(tapCount(), 2);
    EXPECT_NEAR(heardAt("headphones"), source / 2, tolerance);
    EXPECT_NEAR(heardAt("speakers"), source / 2, tolerance);
}

TEST_F(OwnOutputStory, anAppThatCannotBeTappedIsReportedOnce)
{
    const auto pid = launchPlaying("Player");

    world.setOutOfReach(pid, OutOfReach::contested);
    world.runPosted();
    world.advance(3s);

    EXPECT_EQ(controller->state().apps->at(0).outOfReach, OutOfReach::contested);
    EXPECT_EQ(logCount("out of reach: com.example.player, another program keeps moving its stream"), 1);

    world.setOutOfReach(pid, std::nullopt);
    world.runPosted();
    EXPECT_EQ(controller->state().apps->at(0).outOfReach, std::nullopt);
}

TEST_F(OwnOutputStory, anOutputChosenHereOverridesTheAppsOwn)
{
    const auto pid = launchPlaying("Player");
    world.chooseOutputs(pid, {"headphones"});
    world.runPosted();

    chooseOutput(player, "speakers");
    EXPECT_NEAR(heardAt("speakers"), source, tolerance);
    EXPECT_TRUE(world.heard("headphones").isSilent());

    chooseOutput(player, std::nullopt);
    EXPECT_NEAR(heardAt("headphones"), source, tolerance);
    EXPECT_TRUE(world.heard("speakers").isSilent());
}

TEST_F(OwnOutputStory, aDeviceOfTheAppsChoiceThatIsAwayLeavesTheDefault)
{
    const auto pid = launchPlaying("Player");
    world.chooseOutputs(pid, {"headphones"});
    world.runPosted();

    unplug("headphones");

    EXPECT_EQ(outputOf(player), "speakers");
}

TEST_F(OwnOutputStory, fromTwoDevicesToOneNothingIsDoubled)
{
    const auto pid = launchPlaying("Player");
    world.chooseOutputs(pid, {"headphones", "speakers"});
    world.runPosted();

    world.chooseOutputs(pid, {"speakers"});
    world.runPosted();

    EXPECT_EQ(tapCount(), 1);
    EXPECT_NEAR(heardAt("speakers"), source, tolerance);
    EXPECT_TRUE(world.heard("headphones").isSilent());
}

}  // namespace
}  // namespace fadeloom
