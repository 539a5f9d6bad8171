// SPDX-License-Identifier: MIT
// Commands that query, that change in steps, and that address several apps.
#include "tests/commands/CommandStory.h"

namespace fadeloom {
namespace {

using testing::StartsWith;

class ReadingCommandsStory : public CommandStory {
protected:
    ReplyKind kind(std::string_view command) { return commands.interpret(command).kind; }
};

TEST_F(ReadingCommandsStory, withoutALastWordAValueIsRead)
{
    EXPECT_EQ(answer("volume player"), "ok volume com.example.player 1");
    EXPECT_EQ(answer("mute player"), "ok mute com.example.player off");
    EXPECT_EQ(answer("output player"), "ok output com.example.player default");
    EXPECT_EQ(answer("eq player"), "ok eq com.example.player off");
    EXPECT_EQ(answer("preset player"), "ok preset com.example.player Flat");
    EXPECT_TRUE(isUnchanged());
}

TEST_F(ReadingCommandsStory, aVolumeChangesStepByStepAndStopsAtTheEnds)
{
    EXPECT_EQ(answer("volume player 50%"), "ok volume com.example.player 0.5");
    EXPECT_EQ(answer("volume player +5%"), "ok volume com.example.player 0.55");
    EXPECT_EQ(answer("volume player 10%-"), "ok volume com.example.player 0.45");
    EXPECT_EQ(answer("volume player +90%"), "ok volume com.example.player 1");
    EXPECT_EQ(answer("volume player -200%"), "ok volume com.example.player 0");
}

TEST_F(ReadingCommandsStory, aSwitchIsToggled)
{
    EXPECT_EQ(answer("mute player toggle"), "ok mute com.example.player on");
    EXPECT_EQ(answer("mute player toggle"), "ok mute com.example.player off");
    EXPECT_EQ(answer("eq player toggle"), "ok eq com.example.player on");
}

TEST_F(ReadingCommandsStory, anOutputIsNamedOrTheNextOne)
{
    EXPECT_EQ(answer("output player next"), "ok output com.example.player headphones");
    EXPECT_EQ(answer("output player next"), "ok output com.example.player speakers");
    EXPECT_EQ(answer("output player previous"), "ok output com.example.player headphones");
    const auto name = world.audio().outputDevices().front().name;
    EXPECT_EQ(answer("output player \"" + name + "\""),
        "ok output com.example.player " + world.audio().outputDevices().front().uid);
}

TEST_F(ReadingCommandsStory, aCommandMayAddressSeveralApps)
{
    const auto radio = launchPlaying("Radio");
    EXPECT_EQ(answer("mute @all on"), "ok mute com.example.player on; mute com.example.radio on");
    world.stopPlaying(radio);
    world.advance(5s);
    EXPECT_EQ(answer("volume @playing 0.5"), "ok volume com.example.player 0.5");
    EXPECT_EQ(answer("volume @call 0.5"), "ok volume") << "there is no call";
}

TEST_F(ReadingCommandsStory, anErrorInOneOfThemChangesNone)
{
    launchPlaying("Radio");
    std::filesystem::remove(settingsFile());

    EXPECT_EQ(answer("volume @all 3"), "error the volume is a number from 0 to 1, not 3");

    EXPECT_EQ(answer("volume @all"), "ok volume com.example.player 1; volume com.example.radio 1");
}

TEST_F(ReadingCommandsStory, anAppIsNamedByItsProcess)
{
    const auto pid = launchPlaying("Radio");

    EXPECT_EQ(answer("volume pid:" + std::to_string(pid)), "ok volume com.example.radio 1");
    EXPECT_EQ(answer("volume pid:1"), "error no app in the mixer has the process 1");
    EXPECT_EQ(answer("volume pid:x"), "error no app in the mixer has the process x");
}

TEST_F(ReadingCommandsStory, aBarAsksForOneLine)
{
    EXPECT_EQ(answer("status"), "ok status Player 100%");
    EXPECT_EQ(answer("volume player 0.455").substr(0, 3), "ok ");
    EXPECT_EQ(answer("status player"), "ok status Player 46%");
    EXPECT_EQ(answer("mute player on").substr(0, 3), "ok ");
    EXPECT_EQ(answer("status"), "ok status Player muted");
}

TEST_F(ReadingCommandsStory, thePanelIsOpenedWhereThereIsOne)
{
    EXPECT_EQ(answer("open"), "error it runs without a panel");
    int openings = 0;
    int toggles = 0;
    CommandInterpreter withPanel(
        controller, world.platform().text, {.open = [&] { ++openings; }, .toggle = [&] { ++toggles; }});

    EXPECT_EQ(withPanel.interpret("open").text, "ok open");
    EXPECT_EQ(withPanel.interpret("toggle").text, "ok toggle");

    EXPECT_EQ(openings, 1);
    EXPECT_EQ(toggles, 1);
}

TEST_F(ReadingCommandsStory, aReplyStatesItsKind)
{
    EXPECT_EQ(kind("volume player"), ReplyKind::ok);
    EXPECT_EQ(kind("louder"), ReplyKind::usage);
    EXPECT_EQ(kind("mute"), ReplyKind::usage);
    EXPECT_EQ(kind("volume player loud"), ReplyKind::usage);
    EXPECT_EQ(kind("volume nobody"), ReplyKind::unknownName);
    EXPECT_EQ(kind("output player tv"), ReplyKind::unknownName);
    EXPECT_EQ(kind("preset player Nothing"), ReplyKind::unknownName);
    EXPECT_EQ(kind("volume player 3"), ReplyKind::refused);
}

TEST_F(ReadingCommandsStory, aSandboxedCallerMayNotDoEverything)
{
    const auto asked = [&](std::string_view line) { return commands.interpret(line, Caller::sandboxed); };
    for (const auto* const line : {"volume player 0.5", "mute player on", "output player speakers",
             "eq player on", "preset player Rock", "list", "status", "help"})
        EXPECT_EQ(asked(line).kind, ReplyKind::ok) << line;

    for (const auto* const line : {"record player start", "recordings /tmp", "reveal", "calls off",
             "call-app player on", "login on", "limit 2", "quit", "save-preset player Mine"}) {
        const auto reply = asked(line);
        EXPECT_EQ(reply.kind, ReplyKind::denied) << line;
        EXPECT_FALSE(reply.asksToQuit);
    }
    EXPECT_THAT(asked("quit").text, StartsWith("error quit is not for programs in a sandbox"));
}

}  // namespace
}  // namespace fadeloom
