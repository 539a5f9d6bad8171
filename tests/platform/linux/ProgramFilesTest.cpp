// SPDX-License-Identifier: MIT
#include "platform/linux/ProgramFiles.h"

#include "tests/platform/linux/LinuxTree.h"
#include "tests/platform/linux/TestVariables.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

TEST(FindProgram, looksThroughTheFoldersInOrder)
{
    const LinuxTree tree;
    const auto program = tree.program("player");
    LinuxTree::write(tree.root / "notes/player", "not executable");
    std::filesystem::create_directories(tree.root / "folder/player");

    EXPECT_EQ(findProgram("player", {tree.root / "notes", tree.root / "folder", tree.root / "bin"}), program);
    EXPECT_EQ(findProgram("player", {tree.root / "notes", tree.root / "none"}), "");
    EXPECT_EQ(findProgram("", {tree.root / "bin"}), "");
}

TEST(FindProgram, takesAPathOnlyWhenItIsAbsolute)
{
    const LinuxTree tree;
    const auto program = tree.program("player");

    EXPECT_EQ(findProgram(program, {}), program);
    EXPECT_EQ(findProgram("bin/player", {tree.root}), "");
    EXPECT_EQ(findProgram(tree.root / "bin/none", {}), "");
}

TEST(OwnExecutable, isThisTest)
{
    EXPECT_EQ(ownExecutable().filename(), "platform_linuxTests");
    EXPECT_TRUE(isProgram(ownExecutable()));
}

TEST(StartedFile, isTheImageThatTheProgramIsUnpackedFrom)
{
    const auto image =
        variables({{"APPDIR", "/tmp/.mount_fade"}, {"APPIMAGE", "/home/anna/Fadeloom 1.AppImage"}});

    EXPECT_EQ(startedFile(image, "/tmp/.mount_fade/usr/bin/fadeloom"), "/home/anna/Fadeloom 1.AppImage");
}

TEST(StartedFile, isTheExecutableUnlessTheImageIsOurs)
{
    const auto terminal =
        variables({{"APPDIR", "/tmp/.mount_term"}, {"APPIMAGE", "/home/anna/Terminal.AppImage"}});
    const auto halfAnImage = variables({{"APPDIR", "/usr"}});
    const auto strange = variables({{"APPDIR", "/usr"}, {"APPIMAGE", "Fadeloom.AppImage"}});

    EXPECT_EQ(startedFile(terminal, "/usr/bin/fadeloom"), "/usr/bin/fadeloom");
    EXPECT_EQ(startedFile(terminal, "/tmp/.mount_terminal/fadeloom"), "/tmp/.mount_terminal/fadeloom");
    EXPECT_EQ(startedFile(halfAnImage, "/usr/bin/fadeloom"), "/usr/bin/fadeloom");
    EXPECT_EQ(startedFile(strange, "/usr/bin/fadeloom"), "/usr/bin/fadeloom");
    EXPECT_EQ(startedFile(variables({})), ownExecutable());
}

TEST(OwnCommand, isThisTestsCommandLine)
{
    const auto command = ownCommand();
    std::string said;
    for (const auto& argument : ::testing::internal::GetArgvs())
        said += argument + "\n";

    std::string meant = ::testing::internal::GetArgvs().front() + "\n";
    for (const auto& argument : command.arguments)
        meant += argument + "\n";
    EXPECT_EQ(command.program, ownExecutable());
    EXPECT_EQ(meant, said);
}

}  // namespace
}  // namespace fadeloom
