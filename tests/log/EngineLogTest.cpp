// SPDX-License-Identifier: MIT
#include "log/EngineLog.h"

#include "platform/simulated/SimulatedPlatform.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace fadeloom {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using testing::ElementsAre;

class EngineLogTest : public testing::Test {
protected:
    /// Runs the queue's pending tasks.
    void writeAll() { world.advance(0s); }

    static std::string contentOf(const fs::path& path)
    {
        std::ostringstream content;
        content << std::ifstream(path, std::ios::binary).rdbuf();
        return content.str();
    }
    /// Creates a log file of this size.
    void fill(std::size_t size)
    {
        fs::create_directories(folder);
        std::ofstream(file, std::ios::binary) << std::string(size - 1, 'x') + "\n";
    }

    TemporaryFolder temporary;
    fs::path folder = temporary.path() / "support" / "Fadeloom";
    fs::path file = folder / "engine.log";
    fs::path oldFile = folder / "engine.old.log";
    SimulatedPlatform world{temporary.path()};
    std::chrono::sys_seconds moment = std::chrono::sys_days{2026y / 1 / 31} + 14h + 5min + 9s;
    EngineLog log{world.systemLog(), world.logQueue(), folder, [this] { return moment; }};
};

TEST_F(EngineLogTest, theFirstMessageCreatesTheFolderAndTheFile)
{
    log.notice("started");
    writeAll();

    EXPECT_EQ(contentOf(file), "2026-01-31T14:05:09Z INFO  started\n");
    EXPECT_FALSE(fs::exists(oldFile));
}

TEST_F(EngineLogTest, errorMessagesAreAligned)
{
    log.error("Start device failed (OSStatus -50)");
    writeAll();

    EXPECT_EQ(contentOf(file), "2026-01-31T14:05:09Z ERROR Start device failed (OSStatus -50)\n");
}

TEST_F(EngineLogTest, theSystemLogGetsTheMessageImmediatelyAtItsLevel)
{
    log.notice("one");
    log.error("two");

    EXPECT_THAT(world.systemLog().lines(),
        ElementsAre(SimulatedSystemLog::Line{SystemLog::Level::notice, "one"},
            SimulatedSystemLog::Line{SystemLog::Level::error, "two"}));
    EXPECT_FALSE(fs::exists(file)) << "the file is the queue's business";
}

TEST_F(EngineLogTest, linesAreInTheOrderOfTheCallsWithTheTimeOfTheCalls)
{
    log.notice("one");
    moment += 1s;
    log.error("two");
    moment += 24h;
    writeAll();

    EXPECT_EQ(contentOf(file), "2026-01-31T14:05:09Z INFO  one\n2026-01-31T14:05:10Z ERROR two\n");
}

TEST_F(EngineLogTest, messageIsWrittenVerbatim)
{
    log.notice("two\nlines");
    log.notice("");
    log.notice(std::string_view("\xFF\0%s", 4));
    writeAll();

    using namespace std::string_literals;
    EXPECT_EQ(contentOf(file),
        "2026-01-31T14:05:09Z INFO  two\nlines\n2026-01-31T14:05:09Z INFO  \n"
        "2026-01-31T14:05:09Z INFO  \xFF\0%s\n"s);
}

TEST_F(EngineLogTest, aFullFileIsRotated)
{
    fill(256001);
    std::ofstream(oldFile) << "older";

    log.notice("new");
    writeAll();

    EXPECT_EQ(fs::file_size(oldFile), 256001U);
    EXPECT_EQ(contentOf(file), "2026-01-31T14:05:09Z INFO  new\n");
}

TEST_F(EngineLogTest, fileOfExactlyTheLargestSizeTakesOneMoreLine)
{
    fill(256000);

    log.notice("fits");
    writeAll();
    EXPECT_FALSE(fs::exists(oldFile));
    EXPECT_TRUE(contentOf(file).ends_with("x\n2026-01-31T14:05:09Z INFO  fits\n"));

    log.notice("does not");
    writeAll();
    EXPECT_TRUE(contentOf(oldFile).ends_with("fits\n"));
    EXPECT_EQ(contentOf(file), "2026-01-31T14:05:09Z INFO  does not\n");
}

TEST_F(EngineLogTest, folderInTheOldFilesPlaceIsReplaced)
{
    fill(256001);
    fs::create_directories(oldFile / "deep");

    log.notice("new");
    writeAll();

    EXPECT_EQ(fs::file_size(oldFile), 256001U);
}

TEST_F(EngineLogTest, neverKeepsMuchMoreThanTwoFullFiles)
{
    const std::string message(1000, 'm');
    for (int i = 0; i < 2000; ++i)
        log.notice(message);
    writeAll();

    EXPECT_LE(fs::file_size(file), 256000U + 1100U);
    EXPECT_LE(fs::file_size(oldFile), 256000U + 1100U);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 2);
}

TEST_F(EngineLogTest, whatCannotBeWrittenIsStillInTheSystemLog)
{
    std::ofstream(temporary.path() / "support") << "a file where a folder should be";
    log.notice("one");
    writeAll();
    EXPECT_EQ(world.systemLog().lines().size(), 1U);

    fs::remove(temporary.path() / "support");
    fs::create_directories(file);
    log.notice("two");
    writeAll();
    EXPECT_EQ(world.systemLog().lines().size(), 2U);
    EXPECT_TRUE(fs::is_directory(file));
}

TEST_F(EngineLogTest, aPipeInTheFilesPlaceDoesNotBlock)
{
    fs::create_directories(folder);
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);

    log.notice("one");
    writeAll();

    EXPECT_EQ(world.systemLog().lines().size(), 1U);
}

TEST_F(EngineLogTest, waitingLinesOutliveTheLog)
{
    {
        EngineLog shortLived(world.systemLog(), world.logQueue(), folder, [this] { return moment; });
        shortLived.notice("last words");
    }
    writeAll();

    EXPECT_EQ(contentOf(file), "2026-01-31T14:05:09Z INFO  last words\n");
}

TEST_F(EngineLogTest, messagesOfTwoThreadsAreWholeLinesInTheirOrder)
{
    constexpr int count = 500;
    const auto talk = [this](const std::string& name) {
        for (int i = 0; i < count; ++i)
            log.notice(name + " " + std::to_string(i));
    };
    std::thread other([&] { talk("other"); });
    talk("main");
    other.join();
    writeAll();

    std::map<std::string, int> next;
    std::ifstream lines(file);
    std::string time;
    std::string level;
    std::string name;
    for (int number = 0; lines >> time >> level >> name >> number;) {
        EXPECT_EQ(time + level, "2026-01-31T14:05:09ZINFO");
        EXPECT_EQ(number, next[name]++);
    }
    EXPECT_EQ(next["main"], count);
    EXPECT_EQ(next["other"], count);
}

}  // namespace
}  // namespace fadeloom
