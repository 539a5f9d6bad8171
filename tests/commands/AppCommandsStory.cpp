// SPDX-License-Identifier: MIT
// The commands about a single app.
#include "tests/commands/CommandStory.h"

namespace fadeloom {
namespace {

using testing::HasSubstr;

class AppCommandsStory : public CommandStory { };

TEST_F(AppCommandsStory, volumeIsHeardAndSaved)
{
    EXPECT_EQ(answer("volume com.example.player 0.5"), "ok volume com.example.player 0.5");

    EXPECT_NEAR(heardAt("speakers"), source * 0.5F, tolerance);
    EXPECT_EQ(saved().apps.at("com.example.player").volume, 0.5F);
}

TEST_F(AppCommandsStory, muteTakesEffectUntilItIsUndone)
{
    EXPECT_EQ(answer("mute com.example.player on"), "ok mute com.example.player on");
    EXPECT_NEAR(heardAt("speakers"), 0, tolerance);

    EXPECT_EQ(answer("mute com.example.player off"), "ok mute com.example.player off");
    EXPECT_NEAR(heardAt("speakers"), source, tolerance);
}

TEST_F(AppCommandsStory, outputMovesTheApp)
{
    EXPECT_EQ(answer("output com.example.player headphones"), "ok output com.example.player headphones");
    EXPECT_NEAR(heardAt("headphones"), source, tolerance);

    EXPECT_EQ(answer("output com.example.player default"), "ok output com.example.player default");
    EXPECT_NEAR(heardAt("speakers"), source, tolerance);
}

TEST_F(AppCommandsStory, eqSwitchesTheEqualizer)
{
    EXPECT_EQ(answer("eq com.example.player on"), "ok eq com.example.player on");

    world.advance(1s);
    EXPECT_TRUE(saved().apps.at("com.example.player").eqEnabled);
}

TEST_F(AppCommandsStory, bandAndPreampCustomizeTheCurve)
{
    EXPECT_EQ(answer("band player 10 -4.5"), "ok band com.example.player 10 -4.5");
    EXPECT_EQ(answer("preamp player 3"), "ok preamp com.example.player 3");

    world.advance(1s);
    const auto app = saved().apps.at("com.example.player");
    EXPECT_EQ(app.eqGains[9], -4.5F);
    EXPECT_EQ(app.eqPreamp, 3);
    EXPECT_EQ(app.eqPresetName, std::nullopt);
}

TEST_F(AppCommandsStory, presetAppliesAKnownCurve)
{
    EXPECT_EQ(answer("preset player rock"), "ok preset com.example.player Rock");

    world.advance(1s);
    EXPECT_EQ(saved().apps.at("com.example.player").eqPresetName, "Rock");
    EXPECT_TRUE(saved().apps.at("com.example.player").eqEnabled);
}

TEST_F(AppCommandsStory, userPresetsAreSavedAppliedAndDeleted)
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

TEST_F(AppCommandsStory, recordWritesAFileAndReportsItsPath)
{
    EXPECT_EQ(answer("record player start"), "ok record com.example.player start");
    EXPECT_THAT(answer("list"), HasSubstr("output default recording"));
    world.advance(1s);

    EXPECT_EQ(answer("record player stop"), "ok record com.example.player stop");
    world.advance(1s);  // Until it is closed.

    const auto file = folder.path() / "Music" / "Fadeloom Recordings" / "Player 2030-01-02 12.00.01.wav";
    EXPECT_EQ(*controller.state().lastRecording, file);
    world.advance(1s);  // The last audio is written after the stop.
    ASSERT_NE(world.audioFiles().at(file), nullptr);
    EXPECT_GT(world.audioFiles().at(file)->frameCount(), 40000);
    EXPECT_EQ(answer("reveal"), "ok reveal");
    EXPECT_EQ(world.workspace().revealed().back(), file);
}

TEST_F(AppCommandsStory, recordReportsWhyItFails)
{
    EXPECT_EQ(answer("record player stop"), "error com.example.player is not being recorded");
    answer("record player start");
    EXPECT_EQ(answer("record player start"), "error com.example.player is being recorded already");
    answer("record player stop");
    world.audioFiles().refuseToCreate(TapError{"Create recording file", 28});
    EXPECT_EQ(answer("record player start"),
        "error Could not start recording: Create recording file failed (OSStatus 28)");
    world.quitApp(launchPlaying("Chat"));
    world.runPosted();
    EXPECT_EQ(answer("record chat start"), "error Start playback in this app first, then press record.");
}

TEST_F(AppCommandsStory, appsMayBeNamed)
{
    launchPlaying("Music Box");

    EXPECT_EQ(answer("mute \"music box\" on"), "ok mute com.example.musicbox on");
    EXPECT_EQ(answer("mute PLAYER on"), "ok mute com.example.player on");
}

TEST_F(AppCommandsStory, aNameOfSeveralAppsIsAnError)
{
    launchPlaying("Player", {.bundleID = "org.other.player"});
    world.advance(1s);
    std::filesystem::remove(settingsFile());

    EXPECT_EQ(
        answer("mute player on"), "error player names several apps: com.example.player org.other.player");
    EXPECT_TRUE(isUnchanged());
}

TEST_F(AppCommandsStory, anAppThatIsNotRunningIsKnownFromEarlier)
{
    world.quitApp(launchPlaying("Chat"));
    world.runPosted();

    EXPECT_EQ(answer("volume chat 0.25"), "ok volume com.example.chat 0.25");
}

}  // namespace
}  // namespace fadeloom
