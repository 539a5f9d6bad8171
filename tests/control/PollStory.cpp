// SPDX-License-Identifier: MIT
// Which applications are in the mixer, and in which order.
#include "tests/control/ControllerStory.h"

namespace fadeloom {
namespace {

class PollStory : public ControllerStory {
protected:
    PollStory() { start(); }
};

TEST_F(PollStory, anAppIsListedOnceItHasPlayedUntilItsLastProcessExits)
{
    const auto player = world.launchApp("Player");
    world.openAudio(player);
    world.runPosted();
    EXPECT_EQ(mixer(), "");

    world.startPlaying(player);
    world.runPosted();
    EXPECT_EQ(mixer(), "com.example.player▶");

    world.stopPlaying(player);
    world.advance(1min);
    EXPECT_EQ(mixer(), "com.example.player");
    EXPECT_NE(tapOf("com.example.player"), nullptr);

    world.quitApp(player);
    world.runPosted();
    EXPECT_EQ(mixer(), "");
    EXPECT_EQ(tapOf("com.example.player"), nullptr);
    EXPECT_EQ(controller->parametersOf("com.example.player"), nullptr);
    EXPECT_TRUE(hasLogged("tap removed (app quit): com.example.player"));
}

TEST_F(PollStory, anAppThatReturnsMustPlayAgain)
{
    world.quitApp(launchPlaying("Player"));
    world.runPosted();

    world.openAudio(world.launchApp("Player"));
    world.runPosted();

    EXPECT_EQ(mixer(), "");
}

TEST_F(PollStory, playingAppsComeFirstAndLetterCaseDoesNotCount)
{
    const auto zeta = launchPlaying("zeta");
    const auto alpha = launchPlaying("Alpha");
    EXPECT_EQ(mixer(), "com.example.alpha▶, com.example.zeta▶");

    world.stopPlaying(alpha);
    world.runPosted();
    EXPECT_EQ(mixer(), "com.example.zeta▶, com.example.alpha");

    world.stopPlaying(zeta);
    world.runPosted();
    EXPECT_EQ(mixer(), "com.example.alpha, com.example.zeta");
}

TEST_F(PollStory, eachNewListIsLoggedOnce)
{
    launchPlaying("Player");
    launchPlaying("Chat");
    world.advance(1min);

    EXPECT_EQ(logCount("apps: com.example.player▶"), 1);
    EXPECT_EQ(logCount("apps: com.example.chat▶, com.example.player▶"), 1);
}

TEST_F(PollStory, observersAreNotifiedOnlyOfChanges)
{
    int told = 0;
    const auto watch = state().apps.whenAssigned([&] { ++told; });

    launchPlaying("Player");
    EXPECT_EQ(told, 1);

    world.advance(1min);
    EXPECT_EQ(told, 1);
}

TEST_F(PollStory, helpersCountForTheirApplication)
{
    const auto browser = world.launchApp("Browser");
    const auto tab = world.launchHelper(browser, "com.example.browser.helper");
    const auto service = world.launchHelper(-1, "com.example.browser.service");
    world.startPlaying(service);
    world.openAudio(tab);
    world.runPosted();

    ASSERT_EQ(mixer(), "com.example.browser▶");
    const auto& entry = state().apps->front();
    EXPECT_EQ(entry.processIDs,
        (std::vector{world.audioWorld().audioProcessOf(service), world.audioWorld().audioProcessOf(tab)}));
    EXPECT_TRUE(std::ranges::is_sorted(entry.processIDs));
}

TEST_F(PollStory, aDaemonIsNeverListed)
{
    world.startPlaying(world.launchHelper(-1, "com.example.daemon"));
    world.runPosted();

    EXPECT_EQ(mixer(), "");
    EXPECT_EQ(tapAttempts(), 0);
}

TEST_F(PollStory, ourOwnProcessesAreNeverListed)
{
    world.launchApp("Fadeloom", {.bundleID = "com.fadeloom.app", .pid = world.workspace().ownPid()});
    world.startPlaying(world.workspace().ownPid());
    world.runPosted();

    EXPECT_EQ(mixer(), "");
}

TEST_F(PollStory, theLeftoversOfAnEndedAppAreNotListed)
{
    const auto browser = world.launchApp("Browser");
    const auto service = world.launchHelper(-1, "com.example.browser.service");
    world.startPlaying(service);
    world.runPosted();
    ASSERT_EQ(mixer(), "com.example.browser▶");

    world.quitApp(browser);
    world.advance(5s);

    EXPECT_EQ(mixer(), "");
    EXPECT_EQ(tapOf("com.example.browser"), nullptr);
}

TEST_F(PollStory, aProcessWithoutAPidIsNeverListed)
{
    world.launchApp("Player");
    auto& audio = world.audioWorld();
    audio.startPlaying(audio.openAudio(0, "com.example.player"), SimulatedSignal::constant(source));
    audio.startPlaying(audio.openAudio(-1, "com.example.player"), SimulatedSignal::constant(source));
    world.runPosted();

    EXPECT_EQ(mixer(), "");
}

TEST_F(PollStory, anAppWithoutANameIsCalledByItsIdentifier)
{
    const auto player = world.launchApp("Player", {.hasName = false});
    world.startPlaying(player);
    world.runPosted();

    EXPECT_EQ(state().apps->front().name, "com.example.player");
}

TEST_F(PollStory, namesAreRememberedForLaterRuns)
{
    launchPlaying("Player");
    launchPlaying("Chat");
    world.advance(1s);

    EXPECT_EQ(saved().knownAppNames,
        (std::map<std::string, std::string>{{"com.example.player", "Player"}, {"com.example.chat", "Chat"}}));
}

TEST_F(PollStory, namesThatAreKnownAreNotSavedAgain)
{
    launchPlaying("Player");
    world.advance(1s);
    std::filesystem::remove(settingsFile());

    world.advance(1min);

    EXPECT_FALSE(std::filesystem::exists(settingsFile()));
}

TEST_F(PollStory, theMicrophoneIsReadOnlyWhileCallsAreLookedFor)
{
    const auto chat = launchPlaying("Chat");
    world.startUsingMic(chat);
    world.runPosted();
    EXPECT_TRUE(state().apps->front().isUsingMic);

    auto changed = settings();
    changed.focus.enabled = false;
    controller->setSettings(changed);
    controller->poll();

    EXPECT_FALSE(world.audio().wasMicRead());
    EXPECT_FALSE(state().apps->front().isUsingMic);
}

TEST_F(PollStory, unannouncedChangesAreFoundByTheTimer)
{
    world.audioWorld().processesChanged.silence();
    const auto player = world.launchApp("Player");
    world.openAudio(player);
    world.advance(5s);

    world.startPlaying(player);
    world.runPosted();
    EXPECT_EQ(mixer(), "");

    world.advance(5s);
    EXPECT_EQ(mixer(), "com.example.player▶");
}

TEST_F(PollStory, aCallCountsForTheTapsThatTheSamePollMakes)
{
    controller->editSettings([](auto& settings) { settings.focus.callApps = {"com.example.talk"}; });
    const auto pid = world.launchApp("Talk");
    world.startPlaying(pid, SimulatedSignal::constant(0));
    world.startPlaying(world.launchApp("Player"), SimulatedSignal::constant(source));
    world.startUsingMic(pid);
    world.runPosted();

    world.runCycle(64);

    EXPECT_NEAR(world.heard("speakers").peak(1), source * 0.2F, tolerance);
}

}  // namespace
}  // namespace fadeloom
