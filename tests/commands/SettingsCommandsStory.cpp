// SPDX-License-Identifier: MIT
// The commands that do not concern a single app.
#include "tests/commands/CommandStory.h"

namespace fadeloom {
namespace {

using testing::HasSubstr;

class SettingsCommandsStory : public CommandStory { };

TEST_F(SettingsCommandsStory, callsAreFollowed)
{
    EXPECT_EQ(answer("call-app com.example.chat on"), "ok call-app com.example.chat on");
    EXPECT_EQ(answer("call-level 0.5"), "ok call-level 0.5");
    const auto chat = launchPlaying("Chat");
    world.startPlaying(chat, SimulatedSignal::constant(0));

    world.startUsingMic(chat);
    world.runPosted();

    EXPECT_THAT(answer("list"), HasSubstr("calling"));
    world.advance(3s);
    EXPECT_NEAR(heardAt("speakers"), source / 2, 0.01F);
    answer("calls off");
    world.advance(3s);
    EXPECT_NEAR(heardAt("speakers"), source, 0.01F);
}

TEST_F(SettingsCommandsStory, levelsAreListedWhileTheyAreWatched)
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

TEST_F(SettingsCommandsStory, loginFollowsTheSystem)
{
    EXPECT_EQ(answer("login on"), "ok login on");
    EXPECT_EQ(answer("login off"), "ok login off");
    world.loginItem().refuse("The folder is not writable.");

    EXPECT_EQ(answer("login on"), "error Launch at login: The folder is not writable.");
}

TEST_F(SettingsCommandsStory, loginThatWaitsForApprovalSaysSo)
{
    world.loginItem().askForApproval();

    EXPECT_EQ(answer("login on"), "error the system asks for your approval first");
}

TEST_F(SettingsCommandsStory, settingsOfAllAppsAreSaved)
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

TEST_F(SettingsCommandsStory, defaultSetsTheSystemsOutput)
{
    EXPECT_EQ(answer("default headphones"), "ok default headphones");

    EXPECT_NEAR(heardAt("headphones"), source, tolerance);
}

TEST_F(SettingsCommandsStory, aDefaultThatTheSystemRefusesIsAnError)
{
    world.refuse(AudioOperation::setDefaultOutput, HowOften::once);

    EXPECT_EQ(
        answer("default headphones"), "error the system did not accept headphones as its default output");
}

}  // namespace
}  // namespace fadeloom
