// SPDX-License-Identifier: MIT
// Showing files over a real message bus, with the test's own file manager.
#include "platform/linux/FileManager.h"

#include "platform/linux/FileUri.h"
#include "platform/linux/LinuxEnvironment.h"
#include "platform/linux/LinuxWorkspace.h"
#include "tests/platform/linux/PrivateBus.h"
#include "tests/platform/linux/RememberedLog.h"
#include "tests/platform/linux/ShownFiles.h"
#include "tests/platform/linux/StuckBus.h"
#include "tests/platform/linux/TestVariables.h"
#include "tests/support/TemporaryFolder.h"

#include <QCoreApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <sstream>

// Qt and its dependencies are built without the thread sanitizer, which therefore does not see their synchronization.
extern "C" const char* __tsan_default_suppressions();
extern "C" const char* __tsan_default_options();
extern "C" const char* __tsan_default_suppressions()
{
    return "race:libQt6Core.so\nrace:libQt6DBus.so\nrace:libglib-2.0.so\nrace:libdbus-1.so\ndeadlock:libdbus-"
           "1.so\n";
}

// Programs are started by a process that shares our memory until then, and that would count as our own fork.
extern "C" const char* __tsan_default_options()
{
    return "die_after_fork=0";
}

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class FileManagerTest : public ::testing::Test {
protected:
    /// Installs an "xdg-open" that records its arguments.
    void installOpener() const
    {
        const auto program = programs() / "xdg-open";
        fs::create_directories(programs());
        std::ofstream{program} << "#!/bin/sh\nprintf '%s\\n' \"$#\" \"$@\" > '" << opened().string()
                               << ".new' && mv '" << opened().string() << ".new' '" << opened().string()
                               << "'\n";
        fs::permissions(program, fs::perms::owner_all);
    }
    fs::path programs() const { return folder.path() / "bin"; }
    fs::path opened() const { return folder.path() / "opened"; }
    /// Its arguments, with their count; empty until it has run.
    std::string openerArguments() const
    {
        std::ostringstream content;
        content << std::ifstream{opened()}.rdbuf();
        return content.str();
    }
    template <typename Condition>
    static bool waitUntil(Condition condition)
    {
        const auto end = std::chrono::steady_clock::now() + 20s;
        while (!condition() && std::chrono::steady_clock::now() < end)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
        return condition();
    }

    int argumentCount = 1;
    char name[5] = "test";
    char* arguments[2] = {name, nullptr};
    QCoreApplication application{argumentCount, arguments};
    const fs::path& busFolder = sessionBusFolder();
    TemporaryFolder folder;
    RememberedLog log;
    FileManager files{log, variables({{"PATH", programs()}})};
};

TEST_F(FileManagerTest, asksTheFileManagerForTheFile)
{
    installOpener();
    const PrivateBus bus{busFolder};
    const ShownFiles shown{bus.address, ShownFiles::Answers::always};

    files.reveal("/music/My App \xFF.wav");
    files.reveal("/music/second.wav");

    EXPECT_TRUE(waitUntil([&] { return shown.calls().size() == 2; }));
    EXPECT_THAT(shown.calls(),
        ElementsAre("org.freedesktop.FileManager1.ShowItems(ass) file:///music/My%20App%20%FF.wav ''",
            "org.freedesktop.FileManager1.ShowItems(ass) file:///music/second.wav ''"));
    EXPECT_EQ(openerArguments(), "");
    EXPECT_THAT(log.messages(), IsEmpty());
}

TEST_F(FileManagerTest, isReachedThroughTheWorkspace)
{
    const PrivateBus bus{busFolder};
    const ShownFiles shown{bus.address, ShownFiles::Answers::always};
    LinuxWorkspace workspace{LinuxEnvironment{}, files};

    workspace.reveal("/music/recording.wav");

    EXPECT_TRUE(waitUntil([&] { return !shown.calls().empty(); }));
}

TEST_F(FileManagerTest, relativePathIsOneOfTheCurrentFolder)
{
    const PrivateBus bus{busFolder};
    const ShownFiles shown{bus.address, ShownFiles::Answers::always};

    files.reveal("");
    files.reveal("recording.wav");

    EXPECT_TRUE(waitUntil([&] { return !shown.calls().empty(); }));
    EXPECT_THAT(
        shown.calls(), ElementsAre(HasSubstr(" " + fileUri(fs::current_path() / "recording.wav") + " ")));
}

TEST_F(FileManagerTest, opensAnAddress)
{
    installOpener();

    files.open("https://fadeloom.example/download.php?a=1&b=%20");

    EXPECT_TRUE(waitUntil([&] { return !openerArguments().empty(); }));
    EXPECT_EQ(openerArguments(), "1\nhttps://fadeloom.example/download.php?a=1&b=%20\n");
}

TEST_F(FileManagerTest, opensOnlyAddresses)
{
    installOpener();

    for (const auto* const text : {"", "--help", "://", "-x://", "/etc/passwd"})
        files.open(text);
    files.open("https://fadeloom.example");

    EXPECT_TRUE(waitUntil([&] { return !openerArguments().empty(); }));
    EXPECT_EQ(openerArguments(), "1\nhttps://fadeloom.example\n");
}

TEST_F(FileManagerTest, reportsWhenNoProgramOpensAddresses)
{
    files.open("https://fadeloom.example");

    EXPECT_TRUE(waitUntil([&] { return !log.messages().empty(); }));
    EXPECT_THAT(
        log.messages(), ElementsAre("Cannot open https://fadeloom.example: there is no xdg-open to do it"));
}

TEST_F(FileManagerTest, withoutAFileManagerTheFolderIsOpened)
{
    installOpener();
    const PrivateBus bus{busFolder};

    files.reveal("/music of\xFF Anna/recording.wav");

    EXPECT_TRUE(waitUntil([&] { return !openerArguments().empty(); }));
    EXPECT_EQ(openerArguments(), "1\nfile:///music%20of%FF%20Anna\n");
    EXPECT_THAT(log.messages(), IsEmpty());
}

TEST_F(FileManagerTest, withoutABusTheFolderIsOpened)
{
    installOpener();

    files.reveal("/music/recording.wav");

    EXPECT_TRUE(waitUntil([&] { return openerArguments() == "1\nfile:///music\n"; }));
}

TEST_F(FileManagerTest, withoutASessionTheFolderIsOpened)
{
    // In a separate process: the address of the bus is looked up once.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto revealWithoutSession = [this] {
        for (const auto* const variable : {"DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR", "DISPLAY"})
            unsetenv(variable);
        installOpener();
        files.reveal("/music/recording.wav");
        const bool isOpened = waitUntil([&] { return openerArguments() == "1\nfile:///music\n"; });
        fs::remove_all(folder.path());
        fs::remove_all(sessionBusFolder());
        std::_Exit(isOpened ? 0 : 1);
    };

    EXPECT_EXIT(revealWithoutSession(), ::testing::ExitedWithCode(0), "");
}

TEST_F(FileManagerTest, aRestartedBusIsUsed)
{
    for (int life = 0; life < 2; ++life) {
        const PrivateBus bus{busFolder};
        const ShownFiles shown{bus.address, ShownFiles::Answers::always};

        files.reveal("/music/recording.wav");

        EXPECT_TRUE(waitUntil([&] { return !shown.calls().empty(); })) << life;
    }
}

TEST_F(FileManagerTest, whatCannotBeShownIsLogged)
{
    files.reveal("/music/recording.wav");

    EXPECT_TRUE(waitUntil([&] { return !log.messages().empty(); }));
    EXPECT_THAT(log.messages(),
        ElementsAre(AllOf(HasSubstr("Cannot show /music/recording.wav: "), HasSubstr("xdg-open"))));
}

TEST_F(FileManagerTest, aMissingReplyDoesNotBlock)
{
    const auto begin = std::chrono::steady_clock::now();
    const PrivateBus bus{busFolder};
    const ShownFiles shown{bus.address, ShownFiles::Answers::never};
    {
        FileManager waiting{log, variables({})};

        waiting.reveal("/music/first.wav");
        waiting.reveal("/music/second.wav");

        EXPECT_TRUE(waitUntil([&] { return shown.calls().size() == 2; }));
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 10s) << "an answer is waited for 25 seconds";
}

TEST_F(FileManagerTest, aStuckBusDoesNotBlock)
{
    installOpener();
    auto bus = std::make_unique<StuckBus>(sessionBusFolder());

    const auto begin = std::chrono::steady_clock::now();
    files.reveal("/music/recording.wav");
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 5s) << "connecting may take 25 seconds";

    EXPECT_TRUE(waitUntil([&] { return bus->isConnectedTo(); }));
    EXPECT_EQ(openerArguments(), "");
    bus.reset();
    EXPECT_TRUE(waitUntil([&] { return !openerArguments().empty(); }));
}

TEST_F(FileManagerTest, noThreadRunsWithoutARequest)
{
    const auto threads = [] {
        return std::distance(fs::directory_iterator{"/proc/self/task"}, fs::directory_iterator{});
    };
    const auto before = threads();

    auto idle = std::make_unique<FileManager>(log, variables({}));

    EXPECT_EQ(threads(), before);
    idle.reset();
    EXPECT_EQ(threads(), before);
}

}  // namespace
}  // namespace fadeloom
