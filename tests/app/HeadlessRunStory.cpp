// SPDX-License-Identifier: MIT
// The output of a headless run, and its shutdown.
#include "tests/app/HeadlessStory.h"

#include <thread>

namespace fadeloom {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;
using testing::StartsWith;

class HeadlessRunStory : public HeadlessStory { };

TEST_F(HeadlessRunStory, printsTheStateAtStartup)
{
    start();

    EXPECT_THAT(lines(),
        ElementsAre("log started 1.2.3, permission: granted, output: speakers",  //
            "permission granted",  //
            "device added headphones Headphones",  //
            "device added speakers \"Desk Speakers\"",  //
            "default speakers"));
}

TEST_F(HeadlessRunStory, reportsAnAppFromItsFirstSoundToItsEnd)
{
    start();
    lines();

    const auto player = launchPlaying("Player");
    EXPECT_THAT(lines(),
        IsSupersetOf({"app appeared com.example.player Player", "app playing com.example.player",
            "app output com.example.player speakers",
            "log tap ready: com.example.player → speakers @ 48000.0 Hz, 1 process(es), mic streams off: 0"}));

    world.stopPlaying(player);
    world.runPosted();
    EXPECT_THAT(lines(), Contains("app silent com.example.player"));

    world.quitApp(player);
    world.runPosted();
    EXPECT_THAT(lines(),
        IsSupersetOf(
            {"app disappeared com.example.player", "log tap removed (app quit): com.example.player"}));
}

TEST_F(HeadlessRunStory, reportsDevicesAndWhereTheAppsMove)
{
    launchPlaying("Player");
    start();
    lines();

    world.unplug("speakers");
    world.runPosted();

    EXPECT_THAT(lines(),
        IsSupersetOf({"device removed speakers \"Desk Speakers\"", "default headphones",
            "app output com.example.player headphones"}));
}

TEST_F(HeadlessRunStory, reportsAFailedTap)
{
    start();
    lines();
    world.refuse(AudioOperation::createTap, HowOften::always, -50);

    launchPlaying("Player");

    EXPECT_THAT(lines(),
        Contains("log-error tap failed: com.example.player: Create process tap failed (OSStatus -50)"));
}

TEST_F(HeadlessRunStory, reportsARecordingBeforeTheReply)
{
    launchPlaying("Player");
    start();
    run->takeLine("record player start");
    world.advance(1s);
    lines();

    run->takeLine("record player stop");

    const auto file = folder.path() / "Music" / "Fadeloom Recordings" / "Player 2030-01-02 12.00.00.wav";
    EXPECT_THAT(lines(),
        ElementsAre("recording stopped com.example.player", "recording saved \"" + file.string() + "\"",
            "ok record com.example.player stop"));
}

TEST_F(HeadlessRunStory, reportsACallInProgressAtItsStart)
{
    world.startUsingMic(launchPlaying("Talk"));

    start();

    EXPECT_THAT(lines(), Contains("call com.example.talk"));
}

TEST_F(HeadlessRunStory, reportsASuggestedCallApp)
{
    start();
    const auto browser = launchPlaying("Browser");
    lines();

    world.startUsingMic(browser);
    world.runPosted();

    EXPECT_THAT(lines(), Contains("call-app offered com.example.browser"));
}

TEST_F(HeadlessRunStory, reportsACall)
{
    start();
    run->takeLine("call-app com.example.chat on");
    const auto chat = launchPlaying("Chat");
    lines();

    world.startUsingMic(chat);
    world.runPosted();

    EXPECT_THAT(lines(), Contains("call com.example.chat"));
}

TEST_F(HeadlessRunStory, endsWhenACommandAsksForIt)
{
    start();

    EXPECT_EQ(answer("quit"), "ok quit");
    EXPECT_EQ(quitCount, 1);
}

TEST_F(HeadlessRunStory, reportsPermission)
{
    start();
    lines();

    world.setPermission(SimulatedCapturePermission::denied);
    world.advance(5s);

    EXPECT_THAT(lines(), ElementsAre("log permission: denied", "permission denied"));
}

TEST_F(HeadlessRunStory, reportsUnreadableSettings)
{
    std::filesystem::create_directories(settingsFile());

    start();

    EXPECT_THAT(lines(),
        Contains(StartsWith("message \"Settings could not be read, and changes will not be saved: ")));
}

TEST_F(HeadlessRunStory, reportsSettingsThatCannotBeSaved)
{
    launchPlaying("Player");
    start();
    std::filesystem::remove_all(settingsFile());
    std::filesystem::create_directories(settingsFile());
    lines();

    run->takeLine("volume player 0.5");
    world.advance(1s);

    EXPECT_THAT(lines(), Contains(StartsWith("message \"Could not save settings: ")));
}

TEST_F(HeadlessRunStory, printsNothingWithoutEvents)
{
    launchPlaying("Player");
    start();
    world.advance(10s);
    lines();

    world.advance(1min);

    EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(HeadlessRunStory, shutdownSavesPendingChangesAndReleasesEveryApp)
{
    launchPlaying("Player");
    start();
    run->takeLine("volume player 0.5");

    run->shutdown();

    EXPECT_EQ(saved().apps.at("com.example.player").volume, 0.5F);
    EXPECT_NEAR(heardAt("speakers"), source, tolerance);
    EXPECT_THAT(world.audio().operations(), Contains(AudioOperation::destroyTap));
}

TEST_F(HeadlessRunStory, showsATableEverySecondOnATerminal)
{
    terminal = TerminalSize{};
    launchPlaying("Player");
    start();
    run->takeLine("volume player 0.5");
    world.advance(1s);
    lines();

    world.advance(1s);

    const auto table = lines();
    ASSERT_EQ(table.size(), 3);
    EXPECT_THAT(table[0], HasSubstr("App     Output         Volume      Level"));
    EXPECT_THAT(table[1], HasSubstr("Player  Desk Speakers     50%   -18.1 dB"));
}

TEST_F(HeadlessRunStory, showsWhyAnAppIsSilent)
{
    terminal = TerminalSize{};
    launchPlaying("Player");
    launchPlaying("Chat");
    start();
    run->takeLine("output player headphones");
    run->takeLine("mute chat on");
    world.unplug("headphones");

    world.advance(2s);

    EXPECT_THAT(lines(), Contains(HasSubstr("Player  disconnected, muted    100%")));
}

TEST_F(HeadlessRunStory, showsNoTableElsewhere)
{
    launchPlaying("Player");
    start();

    world.advance(3s);

    EXPECT_THAT(lines(), Not(Contains(HasSubstr("Volume"))));
}

TEST_F(HeadlessRunStory, printsWhatAnotherThreadLogsInALaterTurn)
{
    std::jthread([&] { printedLog.write(SystemLog::Level::error, "from elsewhere"); }).join();
    EXPECT_THAT(lines(), IsEmpty());

    world.runPosted();
    EXPECT_THAT(lines(), ElementsAre("log-error from elsewhere"));
}

}  // namespace
}  // namespace fadeloom
