// SPDX-License-Identifier: MIT
#include "platform/qt/LineReader.h"
#include "platform/qt/QtMainLoop.h"

#include <QCoreApplication>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <string>
#include <vector>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;

class LineReaderTest : public ::testing::Test {
protected:
    LineReaderTest()
    {
        EXPECT_EQ(pipe(ends.data()), 0);
        giveUp = loop.after(5s, [this] { loop.quit(1); });
    }
    ~LineReaderTest() override
    {
        close(ends[0]);
        closeWriting();
    }

    void send(std::string_view bytes)
    {
        ASSERT_EQ(write(ends[1], bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }
    void closeWriting()
    {
        if (ends[1] >= 0)
            close(ends[1]);
        ends[1] = -1;
    }

    int argumentCount = 1;
    char name[5] = "test";
    char* arguments[2] = {name, nullptr};
    QCoreApplication application{argumentCount, arguments};
    QtMainLoop loop;
    Subscription giveUp;
    std::array<int, 2> ends{-1, -1};
    std::vector<std::string> lines;
};

TEST_F(LineReaderTest, deliversLinesUntilTheEnd)
{
    const LineReader reader{
        ends[0], [this](const auto& line) { lines.push_back(line.text); }, [this] { loop.quit(); }};

    send("apps\nvolume Music 0.5\nqu");
    send("it");
    closeWriting();

    EXPECT_EQ(loop.run(), 0);
    EXPECT_THAT(lines, ElementsAre("apps", "volume Music 0.5", "quit"));
}

TEST_F(LineReaderTest, deliversALineWhileTheStreamStaysOpen)
{
    const LineReader reader{ends[0],
        [this](const auto& line) {
            lines.push_back(line.text);
            loop.quit();
        },
        [this] { loop.quit(2); }};

    send("apps\n");

    EXPECT_EQ(loop.run(), 0);
    EXPECT_THAT(lines, ElementsAre("apps"));
}

TEST_F(LineReaderTest, aLineMayDestroyTheReader)
{
    std::unique_ptr<LineReader> reader;
    reader = std::make_unique<LineReader>(
        ends[0],
        [&](const auto& line) {
            lines.push_back(line.text);
            reader.reset();
            loop.quit();
        },
        [this] { loop.quit(2); });

    send("quit\nnever\n");
    closeWriting();

    EXPECT_EQ(loop.run(), 0);
    EXPECT_THAT(lines, ElementsAre("quit"));
}

TEST_F(LineReaderTest, anEmptyFileEndsAtOnce)
{
    const int nothing = open("/dev/null", O_RDONLY);
    const LineReader reader{
        nothing, [this](const auto& line) { lines.push_back(line.text); }, [this] { loop.quit(); }};

    EXPECT_EQ(loop.run(), 0);
    EXPECT_THAT(lines, ::testing::IsEmpty());
    close(nothing);
}

TEST_F(LineReaderTest, doesNotChangeTheFlagsOfTheDescriptor)
{
    const int before = fcntl(ends[0], F_GETFL);

    const LineReader reader{ends[0], [](const auto&) { }, [] { }};

    EXPECT_EQ(fcntl(ends[0], F_GETFL), before);
}

}  // namespace
}  // namespace fadeloom
