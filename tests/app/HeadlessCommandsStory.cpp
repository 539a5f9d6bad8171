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
        "; app com.example.chat Chat playing volume 1 mute on eq off output headphones missing"
        "; app com.example.player Player playing volume 1 mute off eq off output default"
        "; device speakers \"Desk Speakers\" default");
}

TEST_F(HeadlessCommandsStory, helpNamesEveryCommandInOneLine)
{
    EXPECT_EQ(answer("help"),
        "ok help; volume APP 0.5; mute APP on|off; eq APP on|off; output APP UID|default; default UID; list; "
        "help; "
        "quit");
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
        std::pair("mute \"player on", "error a double quote is not closed"),
        std::pair("quit now", "error usage: quit"),
        std::pair("lou\x1b[2Jder", "error unknown command lou\uFFFD[2Jder, help lists them")));

}  // namespace
}  // namespace fadeloom
