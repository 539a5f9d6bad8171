// SPDX-License-Identifier: MIT
// Another instance of the program, started by the workspace.
#include "platform/linux/FileManager.h"
#include "platform/linux/LinuxWorkspace.h"
#include "tests/platform/linux/LinuxTree.h"
#include "tests/platform/linux/RememberedLog.h"
#include "tests/platform/linux/TestVariables.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <sstream>
#include <thread>

namespace fadeloom {
namespace {

/// A program that records how it was started.
class NewInstanceTest : public ::testing::Test {
protected:
    std::filesystem::path installProgram() const
    {
        const auto program = tree.program("fade loom");
        LinuxTree::write(program,
            "#!/bin/sh\nprintf '%s\\n' \"$@\" > '" + started.string() + ".new'\nmv '" + started.string()
                + ".new' '" + started.string() + "'\n");
        return program;
    }
    std::string startedWith() const
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (!std::filesystem::exists(started) && std::chrono::steady_clock::now() < end)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        std::ostringstream content;
        content << std::ifstream{started}.rdbuf();
        return content.str();
    }

    LinuxTree tree;
    RememberedLog log;
    FileManager fileManager{log, variables({})};
    std::filesystem::path started = tree.root / "started";
};

TEST_F(NewInstanceTest, isStartedAsThisOneWas)
{
    LinuxWorkspace ours{tree.environment, fileManager, "own", {installProgram(), {"--simulate", "a b ó"}}};
    int reports = 0;

    ours.openNewInstance([&] { ++reports; });

    EXPECT_EQ(reports, 1);
    EXPECT_EQ(startedWith(), "--simulate\na b ó\n");
}

TEST_F(NewInstanceTest, isReportedAlsoWhenItCannotBeStarted)
{
    LinuxWorkspace ours{tree.environment, fileManager, "own", {tree.root / "none", {}}};
    int reports = 0;

    ours.openNewInstance([&] { ++reports; });

    EXPECT_EQ(reports, 1);
}

}  // namespace
}  // namespace fadeloom
