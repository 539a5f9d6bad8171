// SPDX-License-Identifier: MIT
// The program as started by a user.
#include "platform/simulated/SimulatedSystemLog.h"
#include "settings/SettingsFile.h"
#include "tests/app/RunningProgram.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::StartsWith;

TEST(Program, showsItsVersion)
{
    RunningProgram program({"--version"});

    EXPECT_THAT(program.restOfOutput(), testing::MatchesRegex("fadeloom [0-9.]+\n"));
    EXPECT_EQ(program.exitStatus(), 0);
}

TEST(Program, showsHowItIsUsed)
{
    RunningProgram program({"--help"});

    EXPECT_THAT(program.restOfOutput(), StartsWith("Usage: fadeloom [--headless|--background]"));
    EXPECT_EQ(program.exitStatus(), 0);
}

TEST(Program, refusesAnUnknownArgumentWithStatusTwo)
{
    RunningProgram program({"--headless", "--loud"});

    EXPECT_EQ(program.exitStatus(), 2);
    EXPECT_THAT(program.errorText(), StartsWith("fadeloom: unknown argument: --loud\n"));
    EXPECT_EQ(program.restOfOutput(), "");
}

TEST(Program, reportsAMissingDisplayForItsPanel)
{
    RunningProgram program(
        {"--simulate"}, {{"DISPLAY", ""}, {"WAYLAND_DISPLAY", ""}, {"QT_QPA_PLATFORM", ""}});

    EXPECT_EQ(program.exitStatus(), 1);
    EXPECT_EQ(program.errorText(),
        "fadeloom: there is no display to show a panel on; --headless runs without one\n");
}

TEST(Program, runsItsPanelUntilAskedToQuit)
{
    const TemporaryFolder folder;
    const TemporaryFolder runtime;
    RunningProgram program({"--simulate"},
        {{"QT_QPA_PLATFORM", "offscreen"}, {"TMPDIR", folder.path().string()},
            {"XDG_RUNTIME_DIR", runtime.path().string()},
            {"DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent"}});

    for (int i = 0; i < 200 && std::filesystem::is_empty(folder.path()); ++i)
        std::this_thread::sleep_for(50ms);
    std::this_thread::sleep_for(1s);  // Long enough for an error in a view.
    program.signal(SIGTERM);

    EXPECT_EQ(program.exitStatus(), 0);
    EXPECT_THAT(program.errorText(),
        HasSubstr("this desktop shows no status icons; the panel is an ordinary window"));
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

class SimulatedProgram : public testing::Test {
protected:
    /// Commands whose replies exceed what a pipe and the program together can buffer.
    static std::string manyQuestions()
    {
        std::string commands;
        for (int i = 0; i < 3000; ++i)
            commands += "help\n";
        return commands;
    }
    bool isPlaying() { return program.lineWith("log tap ready: com.example.player").has_value(); }

    TemporaryFolder temporary;
    RunningProgram program{{"--headless", "--simulate"}, {{"TMPDIR", temporary.path().string()}}};
};

TEST_F(SimulatedProgram, printsEvents)
{
    EXPECT_TRUE(isPlaying());
    EXPECT_TRUE(program.lineWith("app appeared com.example.browser Browser"));
    EXPECT_TRUE(program.lineWith("log tap ready: com.example.browser"));
}

TEST_F(SimulatedProgram, takesCommands)
{
    ASSERT_TRUE(isPlaying());

    program.write("volume player 0.5\nlouder\n");

    EXPECT_EQ(program.lineWith("ok"), "ok volume com.example.player 0.5");
    EXPECT_EQ(program.lineWith("error"), "error unknown command louder, help lists them");
}

TEST_F(SimulatedProgram, refusesALineThatIsTooLong)
{
    ASSERT_TRUE(isPlaying());

    program.write("quit " + std::string(10000, ' ') + "\n");

    EXPECT_EQ(program.lineWith("error"), "error the line is too long");
}

TEST_F(SimulatedProgram, endsWithStatusZeroOnASignal)
{
    ASSERT_TRUE(isPlaying());

    program.signal(SIGTERM);

    EXPECT_EQ(program.exitStatus(), 0);
}

TEST_F(SimulatedProgram, endsWithStatusZeroOnAnInterrupt)
{
    ASSERT_TRUE(isPlaying());

    program.signal(SIGINT);

    EXPECT_EQ(program.exitStatus(), 0);
}

TEST_F(SimulatedProgram, endsWithStatusZeroOnQuit)
{
    ASSERT_TRUE(isPlaying());

    program.write("quit\n");

    EXPECT_EQ(program.exitStatus(), 0);
    EXPECT_THAT(program.restOfOutput(), HasSubstr("ok quit\n"));
}

TEST_F(SimulatedProgram, continuesAfterTheEndOfItsInput)
{
    ASSERT_TRUE(isPlaying());

    program.closeInput();

    EXPECT_TRUE(program.lineWith("app appeared com.example.chat Chat"));
}

TEST_F(SimulatedProgram, continuesWhenItsOutputIsNotRead)
{
    ASSERT_TRUE(isPlaying());

    program.closeOutput();
    program.write("help\nlist\nhelp\nquit\n");

    EXPECT_EQ(program.exitStatus(), 0);
}

TEST_F(SimulatedProgram, endsOnTheFirstSignalAlsoWhileItsOutputIsHeldUp)
{
    ASSERT_TRUE(isPlaying());
    program.write(manyQuestions());

    program.signal(SIGTERM);

    EXPECT_TRUE(program.endsUnread());
    EXPECT_EQ(program.exitStatus(), 0);
}

TEST_F(SimulatedProgram, countsUnreadLines)
{
    ASSERT_TRUE(isPlaying());
    program.write(manyQuestions());
    std::this_thread::sleep_for(1s);

    EXPECT_TRUE(program.lineWith("dropped "));
    program.write("mute player on\n");
    EXPECT_TRUE(program.lineWith("ok mute com.example.player"));
}

TEST_F(SimulatedProgram, leavesNoFileBehind)
{
    ASSERT_TRUE(isPlaying());
    EXPECT_FALSE(std::filesystem::is_empty(temporary.path()));

    program.write("volume player 0.5\nquit\n");

    EXPECT_EQ(program.exitStatus(), 0);
    EXPECT_TRUE(std::filesystem::is_empty(temporary.path()));
}

/// On this machine, with private folders and no audio server.
class RealProgram : public testing::Test {
protected:
    RealProgram()
    {
        SettingsData settings;
        settings.knownAppNames["com.example.player"] = "Player";
        EXPECT_TRUE(SettingsFile::save(settings, settingsFile));
        const auto here = folder.path().string();
        program.emplace(std::vector<std::string>{"--headless"},
            std::map<std::string, std::string>{{"XDG_CONFIG_HOME", here}, {"XDG_RUNTIME_DIR", here},
                {"PIPEWIRE_RUNTIME_DIR", here}, {"DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent"}});
        EXPECT_TRUE(program->lineWith("default none"));
    }

    float savedVolume()
    {
        SimulatedSystemLog log;
        return SettingsFile::load(settingsFile, log).settings.apps["com.example.player"].volume;
    }

    TemporaryFolder folder;
    std::filesystem::path settingsFile = folder.path() / "Fadeloom" / "settings.json";
    std::optional<RunningProgram> program;
};

TEST_F(RealProgram, savesAPendingChangeOnQuit)
{
    program->write("volume player 0.5\n");
    ASSERT_EQ(program->lineWith("ok"), "ok volume com.example.player 0.5");

    program->signal(SIGTERM);

    EXPECT_EQ(program->exitStatus(), 0);
    EXPECT_EQ(savedVolume(), 0.5F);
}

TEST_F(RealProgram, savesHalfASecondAfterAChange)
{
    program->write("volume player 0.25\n");
    ASSERT_TRUE(program->lineWith("ok"));

    const auto deadline = std::chrono::steady_clock::now() + RunningProgram::timeout;
    while (savedVolume() != 0.25F && std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(std::chrono::milliseconds(20));

    EXPECT_EQ(savedVolume(), 0.25F);
}

TEST_F(RealProgram, endsOnAHangup)
{
    program->signal(SIGHUP);

    EXPECT_EQ(program->exitStatus(), 0);
}

}  // namespace
}  // namespace fadeloom
