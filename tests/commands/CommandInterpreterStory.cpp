// SPDX-License-Identifier: MIT
// The command table, and error replies.
#include "tests/commands/CommandStory.h"

namespace fadeloom {
namespace {

class CommandInterpreterStory : public CommandStory { };

TEST_F(CommandInterpreterStory, listPrintsEverythingOnOneLine)
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

TEST_F(CommandInterpreterStory, helpListsEveryCommandOnOneLine)
{
    EXPECT_EQ(answer("help"),
        "ok help; volume APP [0.5|50%|+5%|-3dB|=-6dB]; mute APP [on|off|toggle]; "
        "output APP [UID|NAME|default|next|previous]; eq APP [on|off|toggle]; band APP 1 DB; preamp APP "
        "[DB]; "
        "preset APP [NAME]; save-preset APP NAME; delete-preset NAME; record APP start|stop; reveal; "
        "recordings PATH|default; default UID; limit 1|1.25|1.5|2; headroom on|off|toggle; "
        "calls on|off|toggle; call-level 0.2; call-app APP on|off|toggle; login on|off|toggle; "
        "theme system|light|dark; meters on|off|toggle; levels on|off|toggle; list [apps|outputs|presets]; "
        "status [APP]; open; toggle; export; restore JSON; complete [WORD...]; help; quit");
}

TEST_F(CommandInterpreterStory, quitAsksForTheEnd)
{
    EXPECT_EQ(commands.interpret("quit"), (CommandInterpreter::Reply{.text = "ok quit", .asksToQuit = true}));
}

TEST_F(CommandInterpreterStory, aLineWithoutAWordIsNotAnswered)
{
    EXPECT_EQ(answer(""), "");
    EXPECT_EQ(answer("   "), "");
}

class CommandMistakes : public CommandInterpreterStory,
                        public testing::WithParamInterface<std::pair<const char*, const char*>> { };

TEST_P(CommandMistakes, areAnsweredWithAnErrorAndChangeNothing)
{
    const auto [line, error] = GetParam();

    const auto reply = commands.interpret(line);
    EXPECT_EQ(reply.text, error);
    EXPECT_NE(reply.kind, ReplyKind::ok);
    EXPECT_FALSE(reply.asksToQuit);

    EXPECT_TRUE(isUnchanged());
    EXPECT_NEAR(heardAt("speakers"), source, tolerance);
}

INSTANTIATE_TEST_SUITE_P(Lines, CommandMistakes,
    testing::Values(std::pair("louder", "error unknown command louder, help lists them"),
        std::pair("VOLUME com.example.player 0.5", "error unknown command VOLUME, help lists them"),
        std::pair("volume com.example.absent 0.5", "error unknown app com.example.absent"),
        std::pair("volume \"\" 0.5", "error unknown app \"\""),
        std::pair("volume", "error usage: volume APP [0.5|50%|+5%|-3dB|=-6dB]"),
        std::pair("volume com.example.player 0.5 0.5", "error usage: volume APP [0.5|50%|+5%|-3dB|=-6dB]"),
        std::pair("volume com.example.player half",
            "error say a volume like 0.5, 50%, =-6dB, +5% or -3dB, not half"),
        std::pair(
            "volume com.example.player nan", "error say a volume like 0.5, 50%, =-6dB, +5% or -3dB, not nan"),
        std::pair("volume com.example.player =-0.1",
            "error say a volume like 0.5, 50%, =-6dB, +5% or -3dB, not =-0.1"),
        std::pair("volume com.example.player 1.1", "error the volume is a number from 0 to 1, not 1.1"),
        std::pair("mute com.example.player yes", "error say on, off or toggle, not yes"),
        std::pair("eq com.example.player 1", "error say on, off or toggle, not 1"),
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
        std::pair("headroom yes", "error say on, off or toggle, not yes"),
        std::pair("calls 1", "error say on, off or toggle, not 1"),
        std::pair("call-level 2", "error the level is a number from 0 to 1, not 2"),
        std::pair("call-app player maybe", "error say on, off or toggle, not maybe"),
        std::pair("call-app \"\" on", "error unknown app \"\""),
        std::pair("theme blue", "error say system, light or dark, not blue"),
        std::pair("login maybe", "error say on, off or toggle, not maybe"),
        std::pair("levels all", "error say on, off or toggle, not all"),
        std::pair("mute \"player on", "error a double quote is not closed"),
        std::pair("list nothing", "error say apps, outputs or presets, not nothing"),
        std::pair("restore {", "error these are no settings: not JSON at line 1, column 2"),
        std::pair("quit now", "error usage: quit"),
        std::pair("lou\x1b[2Jder", "error unknown command lou\uFFFD[2Jder, help lists them")));

}  // namespace
}  // namespace fadeloom
