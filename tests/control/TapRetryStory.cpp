// SPDX-License-Identifier: MIT
// When a refused tap is retried, and when none is created at all.
#include "tests/control/ControllerStory.h"

namespace fadeloom {
namespace {

class TapRetryStory : public ControllerStory {
protected:
    TapRetryStory() { start(); }
    void refuseTaps() { world.refuse(AudioOperation::createTap, HowOften::always, -50); }

    const std::string player = "com.example.player";
};

TEST_F(TapRetryStory, aFailureIsClearedWhenTheDeviceReturns)
{
    refuseTaps();
    launchPlaying("Player");
    ASSERT_EQ(tapOf(player), nullptr);
    world.allow(AudioOperation::createTap);

    unplug("speakers");
    unplug("headphones");
    plug("speakers");

    EXPECT_NE(tapOf(player), nullptr);
}

TEST_F(TapRetryStory, aFailureIsClearedWhenTheRateChanges)
{
    launchPlaying("Player");
    refuseTaps();
    world.changeRate("speakers", 44100);
    world.advance(5s);
    ASSERT_EQ(tapOf(player), nullptr);
    const auto attempts = tapAttempts();
    world.allow(AudioOperation::createTap);

    world.advance(1min);
    EXPECT_EQ(tapAttempts(), attempts) << "nothing has changed";
    world.changeRate("speakers", 48000);
    world.runPosted();

    EXPECT_NE(tapOf(player), nullptr);
}

TEST_F(TapRetryStory, aFailureIsClearedWhenThePermissionChanges)
{
    refuseTaps();
    launchPlaying("Player");
    world.allow(AudioOperation::createTap);
    world.advance(10s);
    ASSERT_EQ(tapOf(player), nullptr);

    world.setPermission(SimulatedCapturePermission::denied);
    world.advance(5s);
    world.setPermission(SimulatedCapturePermission::granted);
    world.advance(5s);

    EXPECT_NE(tapOf(player), nullptr);
}

TEST_F(TapRetryStory, theUserMayTryAgain)
{
    world.refuse(AudioOperation::createTap, HowOften::once);
    launchPlaying("Player");
    launchPlaying("Chat");
    ASSERT_EQ(tapOf("com.example.player"), nullptr);
    controller->poll();
    ASSERT_EQ(tapOf("com.example.player"), nullptr) << "with nothing changed";

    controller->retryTap("com.example.player");

    EXPECT_NE(tapOf("com.example.player"), nullptr);
    EXPECT_TRUE(state().tapErrors->empty());
}

TEST_F(TapRetryStory, anotherOutputMakesNoTapWithoutPermission)
{
    world.setPermission(SimulatedCapturePermission::denied);
    launchPlaying("Player");
    world.advance(5s);

    chooseOutput(player, "headphones");

    EXPECT_EQ(tapAttempts(), 0);
}

}  // namespace
}  // namespace fadeloom
