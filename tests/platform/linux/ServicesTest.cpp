// SPDX-License-Identifier: MIT
// Folders, log and permission of a Linux session.
#include "platform/linux/AlwaysGrantedPermission.h"
#include "platform/linux/SyslogSystemLog.h"
#include "platform/linux/XdgFolders.h"
#include "tests/platform/linux/TestVariables.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <fstream>

namespace fadeloom {
namespace {

TEST(XdgFolders, settingsFolderIsTheOneTheVariableNames)
{
    const XdgFolders folders{variables({{"HOME", "/home/anna"}, {"XDG_CONFIG_HOME", "/settings of/anna"}})};

    EXPECT_EQ(folders.applicationSupport(), "/settings of/anna");
}

TEST(XdgFolders, settingsFolderIsBelowHomeOtherwise)
{
    EXPECT_EQ(XdgFolders{variables({{"HOME", "/home/anna"}})}.applicationSupport(), "/home/anna/.config");
    // A relative path is ignored: it would depend on the folder in which the program was started.
    EXPECT_EQ(
        XdgFolders{variables({{"HOME", "/home/anna"}, {"XDG_CONFIG_HOME", "settings"}})}.applicationSupport(),
        "/home/anna/.config");
}

TEST(XdgFolders, withoutHomeItComesFromTheUserDatabase)
{
    const std::filesystem::path accountHome = getpwuid(getuid())->pw_dir;

    EXPECT_EQ(XdgFolders{variables({})}.applicationSupport(), accountHome / ".config");
    EXPECT_EQ(XdgFolders{variables({{"HOME", "here"}})}.applicationSupport(), accountHome / ".config");
}

TEST(XdgFolders, musicFolderIsTheOneTheUserChose)
{
    const TemporaryFolder settings;
    const auto list = settings.path() / "user-dirs.dirs";
    const XdgFolders folders{variables({{"HOME", "/home/anna"}, {"XDG_CONFIG_HOME", settings.path()}})};
    EXPECT_EQ(folders.music(), "/home/anna/Music");

    std::ofstream{list} << "XDG_DOWNLOAD_DIR=\"$HOME/Downloads\"\nXDG_MUSIC_DIR=\"$HOME/Muzyka\"\n";
    EXPECT_EQ(folders.music(), "/home/anna/Muzyka");

    std::ofstream{list} << "XDG_MUSIC_DIR=\"$HOME/\"\n";
    EXPECT_EQ(folders.music(), "/home/anna/Music");
}

TEST(XdgFolders, musicFolderIsNotTakenFromAVariable)
{
    // Only the file counts: inherited variables may be out of date.
    const XdgFolders folders{
        variables({{"HOME", "/home/anna"}, {"XDG_CONFIG_HOME", "/none"}, {"XDG_MUSIC_DIR", "/music"}})};

    EXPECT_EQ(folders.music(), "/home/anna/Music");
}

TEST(Variables, anEmptyVariableIsNotSet)
{
    setenv("FADELOOM_TEST_VARIABLE", "", 1);
    EXPECT_EQ(processVariables()("FADELOOM_TEST_VARIABLE"), std::nullopt);
    setenv("FADELOOM_TEST_VARIABLE", "x", 1);
    EXPECT_EQ(processVariables()("FADELOOM_TEST_VARIABLE"), "x");
    unsetenv("FADELOOM_TEST_VARIABLE");
    EXPECT_EQ(processVariables()("FADELOOM_TEST_VARIABLE"), std::nullopt);
}

TEST(SyslogSystemLog, messagesCarryTheProgramAndAreNeverFormats)
{
    ::testing::internal::CaptureStderr();
    {
        SyslogSystemLog log{SyslogSystemLog::Echo::standardError};
        log.write(SystemLog::Level::notice, "apps: 100%s %n ▶");
        log.write(SystemLog::Level::error, std::string_view{"cut\0off", 7});
    }
    const std::string written = ::testing::internal::GetCapturedStderr();

    EXPECT_THAT(written, ::testing::HasSubstr("fadeloom["));
    EXPECT_THAT(written, ::testing::HasSubstr("apps: 100%s %n ▶\n"));
    EXPECT_THAT(written, ::testing::HasSubstr("cut off\n"));
}

TEST(AlwaysGrantedPermission, repliesImmediatelyWithoutAPrompt)
{
    AlwaysGrantedPermission permission;
    int granted = 0;

    permission.request([&](bool isGranted) { granted += isGranted ? 1 : 0; });

    EXPECT_EQ(granted, 1);
    EXPECT_EQ(permission.preflight(), std::nullopt);
    EXPECT_FALSE(permission.canRequest());
}

}  // namespace
}  // namespace fadeloom
