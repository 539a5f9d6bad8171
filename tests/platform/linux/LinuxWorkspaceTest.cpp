// SPDX-License-Identifier: MIT
// Applications as reported by the workspace, over a fake tree.
#include "platform/linux/LinuxWorkspace.h"

#include "platform/linux/FileManager.h"
#include "tests/platform/linux/LinuxTree.h"
#include "tests/platform/linux/RememberedLog.h"
#include "tests/platform/linux/TestVariables.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace fadeloom {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class LinuxWorkspaceTest : public ::testing::Test {
protected:
    std::string bundleID(ProcessID pid) const { return workspace.bundleIdentifier(pid, ""); }

    LinuxTree tree;
    RememberedLog log;
    FileManager fileManager{log, variables({})};
    LinuxWorkspace workspace{tree.environment, fileManager};
};

TEST_F(LinuxWorkspaceTest, describesAnApplicationByItsDesktopEntry)
{
    const auto file = tree.entry("org.example.Music", "Name=Music\nExec=music %U\nIcon=org.example.Music\n");
    tree.start({.pid = 10, .executable = tree.program("music"), .startTime = 777});

    const auto app = workspace.runningApplication(10);

    ASSERT_TRUE(app.has_value());
    EXPECT_EQ(app->pid, 10);
    EXPECT_EQ(app->bundleID, "org.example.Music");
    EXPECT_EQ(app->bundleLocation, file);
    EXPECT_EQ(app->activationPolicy, ActivationPolicy::regular);
    EXPECT_EQ(app->localizedName, "Music");
    EXPECT_EQ(app->icon, (AppIcon{"org.example.Music", {}}));
    EXPECT_EQ(app->launchMark, 777U);
    EXPECT_TRUE(workspace.isApplicationBundle(file));
}

TEST_F(LinuxWorkspaceTest, anExecutableWithoutAnEntryIsAnApplication)
{
    const auto program = tree.program("tiny-player");
    tree.start({.pid = 10, .executable = program});

    const auto app = workspace.runningApplication(10);

    ASSERT_TRUE(app.has_value());
    EXPECT_EQ(app->bundleID, "tiny-player");
    EXPECT_EQ(app->bundleLocation, program);
    EXPECT_EQ(app->activationPolicy, ActivationPolicy::regular);
    EXPECT_EQ(app->localizedName, "tiny-player");
    EXPECT_EQ(app->icon, std::nullopt);
    EXPECT_TRUE(workspace.isApplicationBundle(program));
}

TEST_F(LinuxWorkspaceTest, aReplacedExecutableIsAccessedThroughItsProcess)
{
    tree.start({.pid = 10, .executable = "/usr/bin/tiny-player-of-yesterday (deleted)"});

    const auto app = workspace.runningApplication(10);

    EXPECT_EQ(app->bundleID, "tiny-player-of-yesterday");
    EXPECT_EQ(app->bundleLocation, tree.environment.processes / "10/exe");
}

TEST_F(LinuxWorkspaceTest, iconsAreNamesOrFiles)
{
    tree.entry("a", "Exec=a\nIcon=/opt/a/icon.png\n");
    tree.entry("b", "Exec=b\nIcon=b.png\n");
    tree.start({.pid = 10, .executable = tree.program("a")});
    tree.start({.pid = 11, .executable = tree.program("b")});

    EXPECT_EQ(workspace.runningApplication(10)->icon, (AppIcon{"", "/opt/a/icon.png"}));
    EXPECT_EQ(workspace.runningApplication(11)->icon, (AppIcon{"b", {}}));
}

TEST_F(LinuxWorkspaceTest, anEntryThatIsNotShownIsBackgroundWork)
{
    tree.entry("speech", "Exec=speech\nNoDisplay=true\n");
    tree.start({.pid = 10, .executable = tree.program("speech")});

    EXPECT_EQ(workspace.runningApplication(10)->activationPolicy, ActivationPolicy::prohibited);
}

TEST_F(LinuxWorkspaceTest, aHelperIsNotAnApplicationAndItsAncestorIsResponsibleForIt)
{
    tree.entry("org.example.Browser", "Exec=browser\n");
    tree.start({.pid = 10, .executable = tree.program("browser")});
    tree.start({.pid = 11, .parent = 10, .executable = tree.program("sandbox")});
    tree.start({.pid = 12, .parent = 11, .executable = tree.program("audio-helper")});

    EXPECT_FALSE(workspace.runningApplication(12).has_value());
    EXPECT_EQ(workspace.responsiblePid(12), 10);
    EXPECT_EQ(bundleID(12), "org.example.Browser");
    EXPECT_EQ(workspace.responsiblePid(10), 10);
}

TEST_F(LinuxWorkspaceTest, processesOfOneProgramHaveOneOwner)
{
    const auto browser = tree.program("browser");
    tree.entry("org.example.Browser", "Exec=browser\n");
    tree.start({.pid = 10, .executable = browser});
    tree.start({.pid = 11, .parent = 10, .executable = browser});

    EXPECT_EQ(workspace.responsiblePid(11), 10);
    EXPECT_FALSE(workspace.runningApplication(11).has_value());
}

TEST_F(LinuxWorkspaceTest, listsEachApplicationOnce)
{
    tree.entry("org.example.Browser", "Exec=browser\n");
    const auto browser = tree.program("browser");
    tree.start({.pid = 10, .executable = browser});
    tree.start({.pid = 11, .parent = 10, .executable = browser});
    tree.start({.pid = 20, .executable = browser});
    tree.start({.pid = 21, .executable = tree.program("tiny-player")});
    tree.start({.pid = 22, .executable = tree.program("of-someone-else"), .user = 1001});

    std::vector<std::string> listed;
    for (const auto& app : workspace.runningApplications())
        listed.push_back(std::to_string(app.pid) + " " + app.bundleID.value_or("?"));

    EXPECT_THAT(listed, ElementsAre("10 org.example.Browser", "21 tiny-player"));
}

TEST_F(LinuxWorkspaceTest, processesOfOthersAndThoseThatEndedAreAbsent)
{
    tree.start({.pid = 10, .executable = tree.program("player"), .user = 0});
    tree.start({.pid = 11, .executable = tree.program("player"), .state = 'Z'});

    for (const ProcessID pid : {10, 11, 12, 0, -1}) {
        EXPECT_FALSE(workspace.runningApplication(pid).has_value()) << pid;
        EXPECT_EQ(workspace.responsiblePid(pid), std::nullopt) << pid;
        EXPECT_EQ(bundleID(pid), "") << pid;
    }
    EXPECT_THAT(workspace.runningApplications(), IsEmpty());
}

TEST_F(LinuxWorkspaceTest, anApplicationWhosePidWasReusedHasEnded)
{
    const auto player = tree.program("player");
    tree.start({.pid = 10, .executable = player, .startTime = 100});
    const auto app = workspace.runningApplication(10).value();
    EXPECT_FALSE(workspace.isTerminated(app));

    tree.start({.pid = 10, .executable = player, .startTime = 200});
    EXPECT_TRUE(workspace.isTerminated(app));

    tree.end(10);
    EXPECT_TRUE(workspace.isTerminated(app));
}

TEST_F(LinuxWorkspaceTest, newEntriesAreFound)
{
    tree.start({.pid = 10, .executable = tree.program("music")});
    EXPECT_EQ(bundleID(10), "music");

    const auto folder = tree.root / "home/applications";
    tree.entry("org.example.Music", "Exec=music\n", "home");
    std::filesystem::last_write_time(
        folder, std::filesystem::last_write_time(folder) + std::chrono::seconds{2});

    EXPECT_EQ(bundleID(10), "org.example.Music");
}

TEST_F(LinuxWorkspaceTest, theServersApplicationIdOfASandboxHasPrecedence)
{
    EXPECT_EQ(workspace.bundleIdentifier(3, "org.example.Boxed"), "org.example.Boxed");
}

TEST_F(LinuxWorkspaceTest, namesOfAnyBytesBecomeText)
{
    tree.entry("wild", "Exec=wild\nName=" + std::string(10'000, '\xff') + "\n");
    tree.start({.pid = 10, .executable = tree.program("wild")});
    tree.start({.pid = 11, .executable = tree.program("two\nlines \xff"), .shortName = "a) b (\n) S 7"});

    EXPECT_EQ(workspace.runningApplication(10)->localizedName, std::string(255, '?'));
    EXPECT_EQ(bundleID(11), "two lines ?");
    EXPECT_THAT(workspace.runningApplications(), ::testing::SizeIs(2));
}

TEST_F(LinuxWorkspaceTest, aPipeInPlaceOfAFileBlocksNothing)
{
    tree.start({.pid = 10, .executable = tree.program("music")});
    std::filesystem::create_directories(tree.root / "proc/10/root");
    mkfifo((tree.root / "proc/10/root/.flatpak-info").c_str(), 0600);
    mkfifo((tree.root / "usr/applications/pipe.desktop").c_str(), 0600);

    EXPECT_EQ(bundleID(10), "music");
}

TEST_F(LinuxWorkspaceTest, onlyEntriesAndExecutablesAreApplicationBundles)
{
    LinuxTree::write(tree.root / "notes.txt", "x");

    EXPECT_FALSE(workspace.isApplicationBundle(tree.root / "notes.txt"));
    EXPECT_FALSE(workspace.isApplicationBundle(tree.root / "gone.desktop"));
    EXPECT_FALSE(workspace.isApplicationBundle(tree.root / "bin"));
    EXPECT_FALSE(workspace.isApplicationBundle(""));
}

TEST_F(LinuxWorkspaceTest, anInstalledApplicationHasANameEvenIfItIsNotRunning)
{
    tree.entry("org.example.Music", "Name=Music\nExec=music\n");
    const Workspace& asked = workspace;

    EXPECT_EQ(asked.installedName("org.example.Music"), "Music");
    EXPECT_EQ(asked.installedName("org.example.Other"), std::nullopt);
}

}  // namespace
}  // namespace fadeloom
