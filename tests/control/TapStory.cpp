// SPDX-License-Identifier: MIT
// When a tap is created, adapted, rebuilt, given up, and confirmed.
#include "tests/control/ControllerStory.h"

namespace fadeloom {
namespace {

using testing::ElementsAre;

class TapStory : public ControllerStory {
protected:
    TapStory() { start(); }

    // Refuses taps, for any reason the audio system may have.
    void refuseTaps() { world.refuse(AudioOperation::createTap, HowOften::always, -50); }

    const std::string player = "com.example.player";
};

TEST_F(TapStory, aPlayingAppIsTappedAtOnce)
{
    launchPlaying("Player");

    const auto process = state().apps->front().processIDs;
    ASSERT_NE(tapOf(player), nullptr);
    EXPECT_EQ(tapOf(player)->processIDs(), process);
    EXPECT_TRUE(hasLogged(
        "tap ready: com.example.player → speakers @ 48000.0 Hz, 1 process(es), mic streams off: 0"));
    EXPECT_NEAR(heardAt("speakers"), source, tolerance);
}

TEST_F(TapStory, theBlockIsFilledBeforeAnyAudioFlows)
{
    change(player, [](auto& app) { app.volume = 0.5F; });
    world.refuse(AudioOperation::createTap, HowOften::once);

    launchPlaying("Player");

    ASSERT_EQ(tapOf(player), nullptr);
    EXPECT_EQ(valuesOf(player).volume, 0.5F);
}

TEST_F(TapStory, microphonesOfTheOutputAreLeftOff)
{
    world.plug({.uid = "headset", .name = "Headset", .inputStreams = {1}});
    world.setDefaultOutput("headset");

    launchPlaying("Player");

    EXPECT_TRUE(
        hasLogged("tap ready: com.example.player → headset @ 48000.0 Hz, 1 process(es), mic streams off: 1"));
}

TEST_F(TapStory, aNewProcessJoinsTheTapWithoutAGap)
{
    const auto pid = launchPlaying("Player");
    const auto* const tap = tapOf(player);

    world.openAudio(pid);
    world.runPosted();

    EXPECT_EQ(tapOf(player), tap);
    EXPECT_EQ(tap->processIDs().size(), 2);
    EXPECT_TRUE(hasLogged("tap updated: com.example.player, 2 process(es)"));
    EXPECT_EQ(tapAttempts(), 1);
}

TEST_F(TapStory, aTapThatCannotBeAdaptedIsRebuilt)
{
    const auto pid = launchPlaying("Player");
    world.refuse(AudioOperation::setTapProcesses, HowOften::once);

    world.openAudio(pid);
    world.runPosted();

    EXPECT_EQ(tapOf(player)->processIDs().size(), 2);
    EXPECT_THAT(tapsMadeAndTakenDown(),
        ElementsAre(AudioOperation::createTap, AudioOperation::destroyTap, AudioOperation::createTap));
}

TEST_F(TapStory, aNewRateOfTheOutputRebuildsTheTap)
{
    launchPlaying("Player");

    world.changeRate("speakers", 44100);
    world.advance(5s);

    EXPECT_EQ(tapOf(player)->sampleRate(), 44100);
    EXPECT_EQ(tapAttempts(), 2);
    EXPECT_TRUE(hasLogged(
        "tap ready: com.example.player → speakers @ 44100.0 Hz, 1 process(es), mic streams off: 0"));
}

TEST_F(TapStory, aRateOfZeroLeavesTheTapAlone)
{
    launchPlaying("Player");

    world.changeRate("speakers", 0);
    world.advance(5s);

    EXPECT_EQ(tapAttempts(), 1);
}

TEST_F(TapStory, aRateThatCannotBeReadLeavesTheTapAlone)
{
    launchPlaying("Player");
    const auto* const tap = tapOf(player);
    world.refuse(AudioOperation::sampleRate, HowOften::always);

    world.advance(10s);

    EXPECT_EQ(tapOf(player), tap);
    EXPECT_EQ(tapAttempts(), 1);
}

TEST_F(TapStory, aFailedTapIsReportedToTheUserAndTheLog)
{
    refuseTaps();

    launchPlaying("Player");

    EXPECT_EQ(mixer(), "com.example.player▶");
    EXPECT_EQ(state().tapErrors->at(player), (TapError{.step = "Create process tap", .status = -50}));
    EXPECT_TRUE(hasLogged("tap failed: com.example.player: Create process tap failed (OSStatus -50)"));
    EXPECT_EQ(world.systemLog().lines().back().level, SystemLog::Level::error);
}

TEST_F(TapStory, aFailedTapIsNotTriedAgainForTheSameProcessesAndOutput)
{
    refuseTaps();
    const auto pid = launchPlaying("Player");
    world.openAudio(pid);
    world.runPosted();
    ASSERT_EQ(tapAttempts(), 2);
    world.allow(AudioOperation::createTap);

    world.advance(1min);
    EXPECT_EQ(tapAttempts(), 2);

    world.openAudio(pid);
    world.runPosted();
    EXPECT_EQ(tapAttempts(), 3);
    EXPECT_NE(tapOf(player), nullptr);
    EXPECT_TRUE(state().tapErrors->empty());
}

TEST_F(TapStory, anotherOutputRetriesAFailedTap)
{
    refuseTaps();
    launchPlaying("Player");
    world.allow(AudioOperation::createTap);

    chooseOutput(player, "headphones");

    EXPECT_EQ(outputOf(player), "headphones");
    EXPECT_TRUE(state().tapErrors->empty());
}

TEST_F(TapStory, selectingTheCurrentOutputRetriesAFailedTap)
{
    refuseTaps();
    launchPlaying("Player");
    world.allow(AudioOperation::createTap);

    chooseOutput(player, "speakers");

    EXPECT_EQ(outputOf(player), "speakers");
}

TEST_F(TapStory, aNewTapClearsThePreviousFailure)
{
    refuseTaps();
    const auto pid = launchPlaying("Player");
    world.allow(AudioOperation::createTap);
    const auto helper = world.launchHelper(pid, "com.example.player.helper");
    world.openAudio(helper);
    world.runPosted();
    ASSERT_NE(tapOf(player), nullptr);

    world.refuse(AudioOperation::setTapProcesses, HowOften::once);
    world.quitApp(helper);  // The same processes as when it failed.
    world.runPosted();

    ASSERT_NE(tapOf(player), nullptr);
    EXPECT_EQ(tapOf(player)->processIDs().size(), 1);
}

TEST_F(TapStory, theErrorIsClearedWithTheApp)
{
    refuseTaps();
    const auto pid = launchPlaying("Player");
    launchPlaying("Chat");

    world.quitApp(pid);
    world.runPosted();

    EXPECT_FALSE(state().tapErrors->contains(player));
    EXPECT_TRUE(state().tapErrors->contains("com.example.chat"));
}

TEST_F(TapStory, anAppThatReturnsAfterAFailureIsRetried)
{
    refuseTaps();
    world.quitApp(launchPlaying("Player"));
    world.runPosted();
    world.allow(AudioOperation::createTap);

    launchPlaying("Player");

    EXPECT_NE(tapOf(player), nullptr);
}

TEST_F(TapStory, theBlockOutlivesItsTap)
{
    launchPlaying("Player");
    const auto* const block = controller->parametersOf(player);

    chooseOutput(player, "headphones");

    EXPECT_EQ(controller->parametersOf(player), block);
    EXPECT_EQ(tapAttempts(), 2);
}

TEST_F(TapStory, audioThatFlowsIsConfirmedOnce)
{
    const auto pid = launchPlaying("Player");
    world.startPlaying(pid, SimulatedSignal::silence());
    world.advance(6s);
    EXPECT_FALSE(hasLogged("audio flowing through tap: com.example.player"));

    world.startPlaying(pid, SimulatedSignal::constant(source));
    world.advance(20s);
    EXPECT_EQ(logCount("audio flowing through tap: com.example.player"), 1);

    world.quitApp(pid);
    world.runPosted();
    launchPlaying("Player");
    world.advance(20s);
    EXPECT_EQ(logCount("audio flowing through tap: com.example.player"), 2);
}

}  // namespace
}  // namespace fadeloom
