// SPDX-License-Identifier: MIT
// The program in its screenshot mode.
#include "tests/app/RunningProgram.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace fadeloom {
namespace {

using testing::StartsWith;

TEST(ScreenshotProgram, drawsItsScreenshotsWithoutADisplay)
{
    const TemporaryFolder folder;
    RunningProgram program({"--render-screenshots", folder.path().string(), "-en", "light"},
        {{"DISPLAY", ""}, {"WAYLAND_DISPLAY", ""}});

    EXPECT_EQ(program.exitStatus(), 0);
    for (const auto* const name : {"panel-en.png", "eq-en.png", "settings-en.png"})
        EXPECT_GT(std::filesystem::file_size(folder.path() / name), 20000) << name;
}

TEST(ScreenshotProgram, rendersItsScreenshotsInTheSelectedLanguage)
{
    const auto settingsPicture = [](const std::string& language) {
        const TemporaryFolder folder;
        std::filesystem::create_directories(folder.path() / "Fadeloom");
        std::ofstream(folder.path() / "Fadeloom" / "preferences.ini")
            << "[General]\nAppleLanguages=" << language << '\n';
        RunningProgram program({"--render-screenshots", folder.path().string()},
            {{"DISPLAY", ""}, {"WAYLAND_DISPLAY", ""}, {"XDG_CONFIG_HOME", folder.path().string()},
                {"LC_ALL", "C.UTF-8"}, {"LANGUAGE", ""}});
        EXPECT_EQ(program.exitStatus(), 0);
        std::ostringstream bytes;
        bytes << std::ifstream(folder.path() / "settings.png", std::ios::binary).rdbuf();
        return bytes.str();
    };

    const auto english = settingsPicture("en");

    EXPECT_GT(english.size(), 20000U);
    EXPECT_EQ(settingsPicture("system"), english);
    EXPECT_NE(settingsPicture("pl"), english);
}

TEST(ScreenshotProgram, endsWellWhenScreenshotsCannotBeWritten)
{
    RunningProgram program({"--render-screenshots", "/nonexistent/folder"});

    EXPECT_EQ(program.exitStatus(), 0);
    EXPECT_THAT(program.restOfOutput(), StartsWith("❌ /nonexistent/folder/panel.png: "));
}

}  // namespace
}  // namespace fadeloom
