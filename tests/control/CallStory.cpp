// SPDX-License-Identifier: MIT
// The effect of a call on the other apps.
#include "tests/control/ControllerStory.h"

#include <cmath>

namespace fadeloom {
namespace {

class CallStory : public ControllerStory {
protected:
    CallStory()
    {
        SettingsData settings;
        settings.focus.callApps = {talk, meet};
        givenSettings(settings);
        start();
    }

    void startCall(ProcessID pid)
    {
        world.startUsingMic(pid);
        world.runPosted();
    }
    void endCall(ProcessID pid)
    {
        world.stopUsingMic(pid);
        world.runPosted();
    }
    template <typename Change>
    void changeFocus(Change change)
    {
        auto settings = this->settings();
        change(settings.focus);
        controller->setSettings(settings);
        world.runPosted();
    }

    const std::string player = "com.example.player";
    const std::string talk = "com.example.talk";
    const std::string meet = "com.example.meet";
};

TEST_F(CallStory, ducksTheOthersAsSoonAsItBegins)
{
    launchPlaying("Player");
    const auto pid = launchPlaying("Talk");

    startCall(pid);

    EXPECT_EQ(*state().callApp, talk);
    EXPECT_EQ(valuesOf(player).duck, 0.2F);
    EXPECT_EQ(valuesOf(talk).duck, 1);
}

TEST_F(CallStory, restoresTheOthersWhenItEnds)
{
    launchPlaying("Player");
    const auto pid = launchPlaying("Talk");
    startCall(pid);

    endCall(pid);

    EXPECT_EQ(*state().callApp, std::nullopt);
    EXPECT_EQ(valuesOf(player).duck, 1);
    world.advance(3s);
    EXPECT_NEAR(heardAt("speakers"), 2 * source, 2 * tolerance);
}

TEST_F(CallStory, fadesWithATimeConstantOf300Milliseconds)
{
    launchPlaying("Player");
    const auto pid = world.launchApp("Talk");
    world.startPlaying(pid, SimulatedSignal::constant(0));
    world.runPosted();
    world.advance(1s);

    startCall(pid);
    world.advance(300ms);

    const auto expected = source * (0.2 + 0.8 * std::exp(-1.0));
    EXPECT_NEAR(world.heard("speakers").peak(1), expected, 0.05 * expected);
    EXPECT_NEAR(heardAt("speakers"), source * 0.2F, 0.01F);
}

TEST_F(CallStory, ofAnAppThatNeverPlayedIsNotACall)
{
    launchPlaying("Player");
    const auto pid = world.launchApp("Talk");
    world.openAudio(pid);

    startCall(pid);

    EXPECT_EQ(*state().callApp, std::nullopt);
    EXPECT_EQ(valuesOf(player).duck, 1);
}

TEST_F(CallStory, ofASilentAppCountsOnceItHasPlayed)
{
    launchPlaying("Player");
    const auto pid = launchPlaying("Talk");
    world.stopPlaying(pid);
    world.runPosted();

    startCall(pid);

    EXPECT_EQ(*state().callApp, talk);
}

TEST_F(CallStory, ofTwoAppsIsTheFirstsInTheMixer)
{
    launchPlaying("Player");
    const auto meetPid = launchPlaying("Meet");
    const auto talkPid = launchPlaying("Talk");
    startCall(talkPid);
    startCall(meetPid);
    EXPECT_EQ(*state().callApp, meet);

    world.stopPlaying(meetPid);  // A playing app precedes a silent one.
    world.runPosted();

    EXPECT_EQ(*state().callApp, talk);
    EXPECT_EQ(valuesOf(meet).duck, 1);
    EXPECT_EQ(valuesOf(talk).duck, 1);
    EXPECT_EQ(valuesOf(player).duck, 0.2F);
}

TEST_F(CallStory, passesFromOneAppToTheOther)
{
    launchPlaying("Player");
    const auto meetPid = launchPlaying("Meet");
    const auto talkPid = launchPlaying("Talk");
    startCall(meetPid);
    startCall(talkPid);

    endCall(meetPid);

    EXPECT_EQ(*state().callApp, talk);
    EXPECT_EQ(valuesOf(player).duck, 0.2F);
}

TEST_F(CallStory, isNotStartedByAnUnlistedApp)
{
    launchPlaying("Player");
    const auto pid = launchPlaying("Dictation");

    startCall(pid);

    EXPECT_EQ(*state().callApp, std::nullopt);
    EXPECT_EQ(valuesOf(player).duck, 1);
}

TEST_F(CallStory, withDuckingOffNoMicrophoneIsRead)
{
    launchPlaying("Player");
    const auto pid = launchPlaying("Talk");
    changeFocus([](auto& focus) { focus.enabled = false; });

    startCall(pid);
    world.advance(1min);

    EXPECT_FALSE(world.audio().wasMicRead());
    EXPECT_EQ(*state().callApp, std::nullopt);
    EXPECT_EQ(valuesOf(player).duck, 1);
}

TEST_F(CallStory, switchingDuckingOnFindsACallInProgress)
{
    launchPlaying("Player");
    const auto pid = launchPlaying("Talk");
    changeFocus([](auto& focus) { focus.enabled = false; });
    startCall(pid);

    changeFocus([](auto& focus) { focus.enabled = true; });
    world.advance(AudioController::pollInterval);

    EXPECT_EQ(*state().callApp, talk);
    EXPECT_EQ(valuesOf(player).duck, 0.2F);
}

TEST_F(CallStory, switchingDuckingOffRestoresTheOthersImmediately)
{
    launchPlaying("Player");
    startCall(launchPlaying("Talk"));

    changeFocus([](auto& focus) { focus.enabled = false; });

    EXPECT_EQ(*state().callApp, std::nullopt);
    EXPECT_EQ(valuesOf(player).duck, 1);
}

TEST_F(CallStory, removingTheAppFromTheListEndsIt)
{
    launchPlaying("Player");
    startCall(launchPlaying("Talk"));

    changeFocus([&](auto& focus) { focus.callApps = {meet}; });

    EXPECT_EQ(*state().callApp, std::nullopt);
    EXPECT_EQ(valuesOf(player).duck, 1);
    EXPECT_EQ(valuesOf(talk).duck, 1);
}

TEST_F(CallStory, anAppAddedToTheListDuringItIsNoLongerDucked)
{
    launchPlaying("Player");
    startCall(launchPlaying("Talk"));

    changeFocus([&](auto& focus) { focus.callApps.push_back(player); });

    EXPECT_EQ(*state().callApp, talk);
    EXPECT_EQ(valuesOf(player).duck, 1);
}

TEST_F(CallStory, aNewLevelTakesEffectDuringIt)
{
    launchPlaying("Player");
    launchPlaying("Radio");
    startCall(launchPlaying("Talk"));

    changeFocus([](auto& focus) { focus.duckLevel = 0.5F; });

    EXPECT_EQ(valuesOf(player).duck, 0.5F);
    EXPECT_EQ(valuesOf("com.example.radio").duck, 0.5F);
}

TEST_F(CallStory, anAppThatStartsPlayingDuringItIsDuckedFromItsFirstSample)
{
    const auto pid = world.launchApp("Talk");
    world.startPlaying(pid, SimulatedSignal::constant(0));
    world.runPosted();
    startCall(pid);

    launchPlaying("Player");
    world.runCycle(64);

    EXPECT_NEAR(world.heard("speakers").peak(1), source * 0.2F, tolerance);
}

TEST_F(CallStory, endsWhenTheAppQuits)
{
    launchPlaying("Player");
    const auto pid = launchPlaying("Talk");
    startCall(pid);

    world.quitApp(pid);
    world.runPosted();

    EXPECT_EQ(*state().callApp, std::nullopt);
    EXPECT_EQ(valuesOf(player).duck, 1);
}

}  // namespace
}  // namespace fadeloom
