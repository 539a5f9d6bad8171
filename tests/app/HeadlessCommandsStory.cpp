// SPDX-License-Identifier: MIT
// What can be asked of a running program in words.
#include "tests/app/HeadlessStory.h"

namespace fadeloom {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class HeadlessCommandsStory : public HeadlessStory {
protected:
    HeadlessCommandsStory()
    {
        launchPlaying("Player");
        start();
        world.advance(1s);
        std::filesystem::remove(settingsFile());  // The player's name was remembered.
    }

    /// Whether nothing was saved since the story began.
    bool isUnchanged()
    {
        world.advance(1s);
        return !std::filesystem::exists(settingsFile());
    }
};

TEST_F(HeadlessCommandsStory, volumeIsHeardAndSaved)
{
    EXPECT_EQ(answer("volume com.example.player 0.5"), "ok volume com.example.player 0.5");

    EXPECT_NEAR(heardAt("speakers"), source * 0.5F, tolerance);
    EXPECT_EQ(saved().apps.at("com.example.player").volume, 0.5F);
}

TEST_F(HeadlessCommandsStory, muteIsHeardUntilItIsTakenBack)
{
    EXPECT_EQ(answer("mute com.example.player on"), "ok mute com.example.player on");
    EXPECT_NEAR(heardAt("speakers"), 0, tolerance);

    EXPECT_EQ(answer("mute com.example.player off"), "ok mute com.example.player off");
    EXPECT_NEAR(heardAt("speakers"), source, tolerance);
}

TEST_F(HeadlessCommandsStory, outputMovesTheApp)
{
    EXPECT_EQ(answer("output com.example.player headphones"), "ok output com.example.player headphones");
    EXPECT_NEAR(heardAt("headphones"), source, tolerance);

    EXPECT_EQ(answer("output com.example.player default"), "ok output com.example.player default");
    EXPECT_NEAR(heardAt("speakers"), source, tolerance);
}

TEST_F(HeadlessCommandsStory, eqSwitchesTheEqualizer)
{
    EXPECT_EQ(answer("eq com.example.player on"), "ok eq com.example.player on");

    world.advance(1s);
    EXPECT_TRUE(saved().apps.at("com.example.player").eqEnabled);
}

TEST_F(HeadlessCommandsStory, bandAndPreampBendTheCurveByHand)
{
    EXPECT_EQ(answer("band player 10 -4.5"), "ok band com.example.player 10 -4.5");
    EXPECT_EQ(answer("preamp player 3"), "ok preamp com.example.player 3");

    world.advance(1s);
    const auto app = saved().apps.at("com.example.player");
    EXPECT_EQ(app.eqGains[9], -4.5F);
    EXPECT_EQ(app.eqPreamp, 3);
    EXPECT_EQ(app.eqPresetName, std::nullopt);
}

TEST_F(HeadlessCommandsStory, presetAppliesAKnownCurve)
{
    EXPECT_EQ(answer("preset player rock"), "ok preset com.example.player Rock");

    world.advance(1s);
    EXPECT_EQ(saved().apps.at("com.example.player").eqPresetName, "Rock");
    EXPECT_TRUE(saved().apps.at("com.example.player").eqEnabled);
}

TEST_F(HeadlessCommandsStory, presetsOfTheUserAreKeptAppliedAndDeleted)
{
    answer("band player 1 6");
    EXPECT_EQ(answer("save-preset player \" My Bass \""), "ok save-preset com.example.player \"My Bass\"");
    answer("preset player flat");

    EXPECT_EQ(answer("preset player \"my bass\""), "ok preset com.example.player \"My Bass\"");
    EXPECT_THAT(answer("list"), HasSubstr("preset \"My Bass\""));
    EXPECT_EQ(answer("delete-preset \"My Bass\""), "ok delete-preset \"My Bass\"");

    world.advance(1s);
    EXPECT_TRUE(saved().userPresets.empty());
    EXPECT_EQ(saved().apps.at("com.example.player").eqGains[0], 6);
}

TEST_F(HeadlessCommandsStory, recordWritesAFileAndSaysWhere)
{
    EXPECT_EQ(answer("record player start"), "ok record com.example.player start");
    EXPECT_THAT(answer("list"), HasSubstr("output default recording"));
    world.advance(1s);
    lines();

    run->takeLine("record player stop");

    const auto file = folder.path() / "Music" / "Fadeloom Recordings" / "Player 2030-01-02 12.00.01.wav";
    EXPECT_THAT(lines(),
        testing::ElementsAre("recording stopped com.example.player",
            "recording saved \"" + file.string() + "\"", "ok record com.example.player stop"));
    ASSERT_NE(world.audioFiles().at(file), nullptr);
    EXPECT_GT(world.audioFiles().at(file)->frameCount(), 40000);
    EXPECT_EQ(answer("reveal"), "ok reveal");
    EXPECT_EQ(world.workspace().revealed().back(), file);
}

TEST_F(HeadlessCommandsStory, recordSaysWhyItCannot)
{
    EXPECT_EQ(answer("record player stop"), "error com.example.player is not being recorded");
    answer("record player start");
    EXPECT_EQ(answer("record player start"), "error com.example.player is being recorded already");
    answer("record player stop");
    world.audioFiles().refuseToCreate(28);
    EXPECT_EQ(answer("record player start"),
        "error Could not start recording: Create recording file failed (OSStatus 28)");
    world.quitApp(launchPlaying("Chat"));
    world.runPosted();
    EXPECT_EQ(answer("record chat start"), "error Start playback in this app first, then press record.");
}

TEST_F(HeadlessCommandsStory, callsAreFollowedAndTold)
{
    EXPECT_EQ(answer("call-app com.example.chat on"), "ok call-app com.example.chat on");
    EXPECT_EQ(answer("call-level 0.5"), "ok call-level 0.5");
    const auto chat = launchPlaying("Chat");
    world.startPlaying(chat, SimulatedSignal::constant(0));
    lines();

    world.startUsingMic(chat);
    world.runPosted();

    EXPECT_THAT(lines(), testing::Contains("call com.example.chat"));
    EXPECT_THAT(answer("list"), HasSubstr("calling"));
    world.advance(3s);
    EXPECT_NEAR(heardAt("speakers"), source / 2, 0.01F);
    lines();
    answer("calls off");
    world.advance(3s);
    EXPECT_NEAR(heardAt("speakers"), source, 0.01F);
}

TEST_F(HeadlessCommandsStory, levelsAreListedWhileTheyAreWatched)
{
    EXPECT_EQ(answer("levels on"), "ok levels on");
    world.advance(1s);
    EXPECT_THAT(answer("list"), HasSubstr("output default level 0.79"));

    EXPECT_EQ(answer("meters off"), "ok meters off");
    EXPECT_THAT(answer("list"), testing::Not(HasSubstr("level")));
    answer("meters on");
    EXPECT_EQ(answer("levels off"), "ok levels off");
    world.advance(1s);
    EXPECT_THAT(answer("list"), testing::Not(HasSubstr("level")));
}

TEST_F(HeadlessCommandsStory, loginFollowsTheSystem)
{
    EXPECT_EQ(answer("login on"), "ok login on");
    EXPECT_EQ(answer("login off"), "ok login off");
    world.loginItem().refuse("The folder is not writable.");

    EXPECT_EQ(answer("login on"), "error Launch at login: The folder is not writable.");
}

TEST_F(HeadlessCommandsStory, loginThatWaitsForApprovalSaysSo)
{
    world.loginItem().askForApproval();

    EXPECT_EQ(answer("login on"), "error the system asks for your approval first");
}

TEST_F(HeadlessCommandsStory, settingsOfAllAppsAreSaved)
{
    EXPECT_EQ(answer("limit 1.5"), "ok limit 1.5");
    EXPECT_EQ(answer("headroom off"), "ok headroom off");
    EXPECT_EQ(answer("theme dark"), "ok theme dark");
    EXPECT_EQ(answer("recordings /my/tapes"), "ok recordings /my/tapes");

    world.advance(1s);
    EXPECT_EQ(saved().volumeLimit, 1.5F);
    EXPECT_FALSE(saved().eqAutoHeadroom);
    EXPECT_EQ(saved().appearance.theme, Theme::dark);
    EXPECT_EQ(saved().recordingsFolder, "/my/tapes");
    EXPECT_EQ(answer("recordings default"), "ok recordings default");
    world.advance(1s);
    EXPECT_EQ(saved().recordingsFolder, std::nullopt);
}

TEST_F(HeadlessCommandsStory, defaultSetsTheSystemsOutput)
{
    EXPECT_EQ(answer("default headphones"), "ok default headphones");

    EXPECT_NEAR(heardAt("headphones"), source, tolerance);
}

TEST_F(HeadlessCommandsStory, aDefaultThatTheSystemRefusesIsAnError)
{
    world.refuse(AudioOperation::writeProperty, HowOften::once);

    EXPECT_EQ(
        answer("default headphones"), "error the system did not accept headphones as its default output");
}

TEST_F(HeadlessCommandsStory, appsMayBeNamed)
{
    launchPlaying("Music Box");

    EXPECT_EQ(answer("mute \"music box\" on"), "ok mute com.example.musicbox on");
    EXPECT_EQ(answer("mute PLAYER on"), "ok mute com.example.player on");
}

TEST_F(HeadlessCommandsStory, aNameOfSeveralAppsIsAnError)
{
    launchPlaying("Player", {.bundleID = "org.other.player"});
    world.advance(1s);
    std::filesystem::remove(settingsFile());

    EXPECT_EQ(
        answer("mute player on"), "error player names several apps: com.example.player org.other.player");
    EXPECT_TRUE(isUnchanged());
}

TEST_F(HeadlessCommandsStory, anAppThatIsNotThereIsKnownFromEarlier)
{
    world.quitApp(launchPlaying("Chat"));
    world.runPosted();

    EXPECT_EQ(answer("volume chat 0.25"), "ok volume com.example.chat 0.25");
}

TEST_F(HeadlessCommandsStory, listSaysEverythingInOneLine)
{
    launchPlaying("Chat");
    answer("mute chat on");
    answer("output chat headphones");
    world.unplug("headphones");
    world.runPosted();

    EXPECT_EQ(answer("list"),
        "ok list 2 apps"
        "; app com.example.chat Chat playing volume 1 mute on eq off preset Flat output headphones missing"
        "; app com.example.player Player playing volume 1 mute off eq off preset Flat output default"
        "; device speakers \"Desk Speakers\" default");
}

TEST_F(HeadlessCommandsStory, helpNamesEveryCommandInOneLine)
{
    EXPECT_EQ(answer("help"),
        "ok help; volume APP 0.5; mute APP on|off; output APP UID|default; eq APP on|off; band APP 1 DB; "
        "preamp APP DB; preset APP NAME; save-preset APP NAME; delete-preset NAME; record APP start|stop; "
        "reveal; recordings PATH|default; default UID; limit 1|1.25|1.5|2; headroom on|off; calls on|off; "
        "call-level 0.2; call-app APP on|off; login on|off; theme system|light|dark; meters on|off; "
        "levels on|off; list; help; quit");
}

TEST_F(HeadlessCommandsStory, quitAsksForTheEnd)
{
    EXPECT_EQ(answer("quit"), "ok quit");

    EXPECT_EQ(quitCount, 1);
}

TEST_F(HeadlessCommandsStory, aLineWithoutAWordIsNotAnswered)
{
    EXPECT_EQ(answer(""), "");
    EXPECT_EQ(answer("   "), "");
}

class HeadlessMistakes : public HeadlessCommandsStory,
                         public testing::WithParamInterface<std::pair<const char*, const char*>> { };

TEST_P(HeadlessMistakes, areAnsweredWithAnErrorAndChangeNothing)
{
    const auto [line, error] = GetParam();

    EXPECT_EQ(answer(line), error);

    EXPECT_TRUE(isUnchanged());
    EXPECT_EQ(quitCount, 0);
    EXPECT_NEAR(heardAt("speakers"), source, tolerance);
}

INSTANTIATE_TEST_SUITE_P(Lines, HeadlessMistakes,
    testing::Values(std::pair("louder", "error unknown command louder, help lists them"),
        std::pair("VOLUME com.example.player 0.5", "error unknown command VOLUME, help lists them"),
        std::pair("volume com.example.absent 0.5", "error unknown app com.example.absent"),
        std::pair("volume \"\" 0.5", "error unknown app \"\""),
        std::pair("volume com.example.player", "error usage: volume APP 0.5"),
        std::pair("volume com.example.player 0.5 0.5", "error usage: volume APP 0.5"),
        std::pair("volume com.example.player half", "error the volume is a number from 0 to 1, not half"),
        std::pair("volume com.example.player nan", "error the volume is a number from 0 to 1, not nan"),
        std::pair("volume com.example.player -0.1", "error the volume is a number from 0 to 1, not -0.1"),
        std::pair("volume com.example.player 1.1", "error the volume is a number from 0 to 1, not 1.1"),
        std::pair("mute com.example.player yes", "error say on or off, not yes"),
        std::pair("eq com.example.player 1", "error say on or off, not 1"),
        std::pair("output com.example.player tv", "error unknown device tv"),
        std::pair("default tv", "error unknown device tv"),
        std::pair("band player 0 3", "error the bands are 1 to 10, not 0"),
        std::pair("band player 11 3", "error the bands are 1 to 10, not 11"),
        std::pair("band player one 3", "error the bands are 1 to 10, not one"),
        std::pair("band player 1 13", "error say a number of decibels from -12 to 12, not 13"),
        std::pair("preamp player loud", "error say a number of decibels from -12 to 12, not loud"),
        std::pair("preset player Nothing", "error unknown preset Nothing"),
        std::pair("preset nobody Rock", "error unknown app nobody"),
        std::pair("save-preset player \" \"", "error a preset needs a name"),
        std::pair("save-preset player rock", "error “rock” is a built-in preset name. Choose another name."),
        std::pair("delete-preset Rock", "error no preset of yours is called Rock"),
        std::pair("record player on", "error say start or stop, not on"),
        std::pair("record nobody start", "error unknown app nobody"),
        std::pair("reveal", "error nothing was recorded yet"),
        std::pair("recordings tapes", "error say a path from the root, not tapes"),
        std::pair("limit 3", "error the limit is 1, 1.25, 1.5 or 2, not 3"),
        std::pair("headroom yes", "error say on or off, not yes"),
        std::pair("calls 1", "error say on or off, not 1"),
        std::pair("call-level 2", "error the level is a number from 0 to 1, not 2"),
        std::pair("call-app player maybe", "error say on or off, not maybe"),
        std::pair("call-app \"\" on", "error unknown app \"\""),
        std::pair("theme blue", "error say system, light or dark, not blue"),
        std::pair("login maybe", "error say on or off, not maybe"),
        std::pair("levels all", "error say on or off, not all"),
        std::pair("mute \"player on", "error a double quote is not closed"),
        std::pair("quit now", "error usage: quit"),
        std::pair("lou\x1b[2Jder", "error unknown command lou\uFFFD[2Jder, help lists them")));

}  // namespace
}  // namespace fadeloom
