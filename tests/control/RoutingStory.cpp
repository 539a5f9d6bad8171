// SPDX-License-Identifier: MIT
// Where each app plays while devices come and go.
#include "tests/control/ControllerStory.h"

namespace fadeloom {
namespace {

class RoutingStory : public ControllerStory {
protected:
    RoutingStory() { start(); }

    // Makes "headphones" the output of only the player.
    void startWithPlayerOnHeadphones()
    {
        launchPlaying("Player");
        chooseOutput(player, "headphones");
        world.runPosted();
    }

    const std::string player = "com.example.player";
    const std::string chat = "com.example.chat";
};

TEST_F(RoutingStory, anAppWithoutAChoicePlaysOnTheDefaultOutput)
{
    launchPlaying("Player");

    EXPECT_EQ(controller->outputUID(player), "speakers");
    EXPECT_NEAR(heardAt("speakers"), source, tolerance);
    EXPECT_TRUE(world.heard("headphones").isSilent());
}

TEST_F(RoutingStory, aChosenOutputIsHeardAtOnce)
{
    launchPlaying("Player");

    chooseOutput(player, "headphones");

    EXPECT_EQ(outputOf(player), "headphones");
    EXPECT_NEAR(heardAt("headphones"), source, tolerance);
    EXPECT_TRUE(world.heard("speakers").isSilent());
}

TEST_F(RoutingStory, anAppWhoseOutputIsUnpluggedIsMutedUntilItReturns)
{
    startWithPlayerOnHeadphones();

    unplug("headphones");
    EXPECT_EQ(outputOf(player), "speakers");
    EXPECT_TRUE(valuesOf(player).muted);
    EXPECT_EQ(*state().missingOutput, std::set{player});
    EXPECT_TRUE(hasLogged("output missing, muting: com.example.player"));
    EXPECT_NEAR(heardAt("speakers"), 0, tolerance);

    plug("headphones");
    EXPECT_EQ(outputOf(player), "headphones");
    EXPECT_FALSE(valuesOf(player).muted);
    EXPECT_TRUE(state().missingOutput->empty());
    EXPECT_TRUE(hasLogged("output back: com.example.player"));
    EXPECT_NEAR(heardAt("headphones"), source, tolerance);
}

TEST_F(RoutingStory, aReturnedOutputUnmutesTheAppBeforeItsTapIsMadeThere)
{
    startWithPlayerOnHeadphones();
    unplug("headphones");

    plug("headphones");

    const auto messages = log();
    ASSERT_GE(messages.size(), 2);
    EXPECT_EQ(messages[messages.size() - 2], "output back: com.example.player");
    EXPECT_TRUE(messages.back().starts_with("tap ready: com.example.player → headphones"));
}

TEST_F(RoutingStory, aMissingOutputMutesAnAppWhoseTapIsNotRebuilt)
{
    startWithPlayerOnHeadphones();
    world.setPermission(SimulatedCapturePermission::denied);
    unplug("headphones");

    EXPECT_TRUE(valuesOf(player).muted);
}

TEST_F(RoutingStory, anUnpluggedOutputStaysTheAppsChoice)
{
    startWithPlayerOnHeadphones();

    unplug("headphones");
    world.advance(1min);

    EXPECT_EQ(settings().apps.at(player).outputUID, "headphones");
    EXPECT_EQ(logCount("output missing, muting: com.example.player"), 1);
}

TEST_F(RoutingStory, choosingAnotherOutputUnmutesAnAppWhoseOutputIsAway)
{
    startWithPlayerOnHeadphones();
    unplug("headphones");

    chooseOutput(player, "speakers");
    world.runPosted();

    EXPECT_FALSE(valuesOf(player).muted);
    EXPECT_TRUE(state().missingOutput->empty());
}

TEST_F(RoutingStory, anAppThatFollowsTheDefaultIsNeverMissing)
{
    launchPlaying("Player");

    unplug("speakers");
    EXPECT_EQ(outputOf(player), "headphones");
    unplug("headphones");

    EXPECT_TRUE(state().missingOutput->empty());
    EXPECT_FALSE(valuesOf(player).muted);
}

TEST_F(RoutingStory, anAppIsMissingItsOutputOnlyOnceItIsListed)
{
    chooseOutput(player, "television");
    world.openAudio(world.launchApp("Player"));
    world.runPosted();
    EXPECT_TRUE(state().missingOutput->empty());

    launchPlaying("Player");
    EXPECT_EQ(*state().missingOutput, std::set{player});
    EXPECT_NEAR(heardAt("speakers"), 0, tolerance);
}

TEST_F(RoutingStory, withoutAnyDeviceNoAppIsTapped)
{
    unplug("speakers");
    unplug("headphones");
    chooseOutput(player, "headphones");

    launchPlaying("Player");
    launchPlaying("Chat");

    EXPECT_EQ(mixer(), "com.example.chat▶, com.example.player▶");
    EXPECT_EQ(*state().missingOutput, std::set{player});
    EXPECT_EQ(controller->outputUID(player), std::nullopt);
    EXPECT_EQ(tapAttempts(), 0);

    plug("headphones");
    EXPECT_EQ(outputOf(player), "headphones");
    EXPECT_EQ(outputOf(chat), "headphones");
}

TEST_F(RoutingStory, aNewDefaultOutputMovesTheAppsWithoutAChoiceAndOnlyThose)
{
    world.plug({.uid = "television", .name = "Television"});
    startWithPlayerOnHeadphones();
    launchPlaying("Chat");
    const auto* const tap = tapOf(player);

    world.setDefaultOutput("television");
    world.runPosted();

    EXPECT_EQ(*state().defaultDeviceUID, "television");
    EXPECT_EQ(outputOf(chat), "television");
    EXPECT_EQ(tapOf(player), tap);
}

TEST_F(RoutingStory, theSystemsDefaultOutputCanBeSet)
{
    launchPlaying("Player");

    EXPECT_TRUE(controller->setSystemOutput(state().devices->at(1)));
    world.runPosted();

    EXPECT_EQ(*state().defaultDeviceUID, "headphones");
    EXPECT_EQ(outputOf(player), "headphones");
    EXPECT_EQ(*state().error, std::nullopt);
}

TEST_F(RoutingStory, aDefaultOutputThatCannotBeSetIsReportedToTheUser)
{
    launchPlaying("Player");
    world.refuse(AudioOperation::setDefaultOutput, HowOften::once);
    world.audio().clearCallCounts();

    EXPECT_FALSE(controller->setSystemOutput(state().devices->at(1)));

    EXPECT_EQ(message(), "Could not switch output to Headphones.");
    EXPECT_EQ(*state().defaultDeviceUID, "speakers");
    EXPECT_EQ(world.audio().callCount(AudioOperation::processes), 1);
}

TEST_F(RoutingStory, theMessageStaysUntilItIsDismissed)
{
    world.refuse(AudioOperation::setDefaultOutput, HowOften::once);
    controller->setSystemOutput(state().devices->at(1));
    world.advance(1min);
    EXPECT_NE(*state().error, std::nullopt);

    controller->dismissError();
    EXPECT_EQ(*state().error, std::nullopt);
}

TEST_F(RoutingStory, aDeviceThatIsPluggedInAgainIsANewOne)
{
    startWithPlayerOnHeadphones();
    const auto before = tapOf(player)->outputID();

    world.unplug("headphones");
    plug("headphones");

    EXPECT_EQ(outputOf(player), "headphones");
    EXPECT_NE(tapOf(player)->outputID(), before);
    EXPECT_NEAR(heardAt("headphones"), source, tolerance);
}

TEST_F(RoutingStory, ourOwnDevicesAreNotOffered)
{
    launchPlaying("Player");
    plug("television");

    EXPECT_EQ(state().devices->size(), 3);
}

TEST_F(RoutingStory, anotherOutputIsTappedOnceTheFormerTapIsDown)
{
    launchPlaying("Player");

    chooseOutput(player, "headphones");

    EXPECT_THAT(tapsMadeAndTakenDown(),
        testing::ElementsAre(
            AudioOperation::createTap, AudioOperation::destroyTap, AudioOperation::createTap));
}

}  // namespace
}  // namespace fadeloom
