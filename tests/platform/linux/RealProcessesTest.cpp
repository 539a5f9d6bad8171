// SPDX-License-Identifier: MIT
// The workspace over the real process file system, with real children.
#include "platform/linux/FileManager.h"
#include "platform/linux/LinuxWorkspace.h"
#include "platform/linux/ProcessTable.h"
#include "tests/platform/linux/RememberedLog.h"
#include "tests/platform/linux/TestVariables.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <thread>

namespace fadeloom {
namespace {

/// A process that sleeps until it is ended.
class Sleeper {
public:
    explicit Sleeper(std::vector<std::string> command)
    {
        std::vector<char*> arguments;
        for (auto& argument : command)
            arguments.push_back(argument.data());
        arguments.push_back(nullptr);
        EXPECT_EQ(posix_spawnp(&pid, arguments[0], nullptr, nullptr, arguments.data(), environ), 0);
    }
    Sleeper(const Sleeper&) = delete;
    Sleeper& operator=(const Sleeper&) = delete;
    ~Sleeper() { end(); }

    void end()
    {
        if (pid > 0) {
            kill(pid, SIGKILL);
            waitpid(pid, nullptr, 0);
        }
        pid = -1;
    }

    pid_t pid = -1;
};

template <typename Condition>
bool waitUntil(Condition condition)
{
    for (int i = 0; i < 1000 && !condition(); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds{5});
    return condition();
}

class RealProcessesTest : public ::testing::Test {
protected:
    LinuxEnvironment environment = [] {
        LinuxEnvironment real = linuxEnvironment(processVariables());
        real.applicationFolders.clear();  // Must not depend on what is installed here.
        return real;
    }();
    RememberedLog log;
    FileManager fileManager{log, variables({})};
    LinuxWorkspace workspace{environment, fileManager};
};

TEST_F(RealProcessesTest, weAreAmongTheProcesses)
{
    ProcessTable processes{environment};

    const ProcessInfo* const self = processes.find(getpid());

    ASSERT_NE(self, nullptr);
    EXPECT_EQ(self->parent, getppid());
    EXPECT_EQ(self->executable, std::filesystem::canonical("/proc/self/exe"));
    EXPECT_GT(self->startTime, 0U);
    EXPECT_EQ(workspace.ownPid(), getpid());
}

TEST_F(RealProcessesTest, aChildIsAnApplicationUntilItEnds)
{
    Sleeper sleeper{{"sleep", "1000"}};
    ASSERT_TRUE(waitUntil([&] { return workspace.bundleIdentifier(sleeper.pid, "") == "sleep"; }));
    const auto app = workspace.runningApplication(sleeper.pid).value();

    EXPECT_EQ(app.localizedName, "sleep");
    EXPECT_TRUE(workspace.isApplicationBundle(*app.bundleLocation));
    EXPECT_FALSE(workspace.isTerminated(app));
    const auto all = workspace.runningApplications();
    EXPECT_TRUE(std::ranges::any_of(all, [](const auto& each) { return each.bundleID == "sleep"; }));

    sleeper.end();

    EXPECT_TRUE(workspace.isTerminated(app));
    EXPECT_FALSE(workspace.runningApplication(app.pid).has_value());
}

TEST_F(RealProcessesTest, aChildThatEndedWithoutBeingWaitedForHasEnded)
{
    Sleeper sleeper{{"sleep", "1000"}};
    ASSERT_TRUE(waitUntil([&] { return workspace.runningApplication(sleeper.pid).has_value(); }));
    const auto app = workspace.runningApplication(sleeper.pid).value();

    kill(sleeper.pid, SIGKILL);

    EXPECT_TRUE(waitUntil([&] { return workspace.isTerminated(app); }));
}

TEST_F(RealProcessesTest, aShellScriptIsKnownByItsName)
{
    const std::filesystem::path script = ::testing::TempDir() + "fadeloom-radio-" + std::to_string(getpid());
    FILE* const file = fopen(script.c_str(), "we");
    ASSERT_NE(file, nullptr);
    fputs("#!/bin/sh\nread -r line\n", file);
    fclose(file);
    std::filesystem::permissions(script, std::filesystem::perms::owner_all);
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const int input = dup(0);
    dup2(ends[0], 0);  // So that the script waits for a line that never arrives.

    const Sleeper sleeper{{script.string()}};
    dup2(input, 0);

    EXPECT_TRUE(waitUntil([&] { return workspace.bundleIdentifier(sleeper.pid, "") == script.filename(); }));
    for (const int descriptor : {ends[0], ends[1], input})
        close(descriptor);
    std::filesystem::remove(script);
}

TEST_F(RealProcessesTest, processesThatComeAndGoMeanwhileAreHarmless)
{
    for (int i = 0; i < 40; ++i) {
        const Sleeper brief{{"true"}};
        const auto all = workspace.runningApplications();
        EXPECT_THAT(all, ::testing::Not(::testing::IsEmpty()));
    }
}

}  // namespace
}  // namespace fadeloom
