// SPDX-License-Identifier: MIT
#include "app/Console.h"

#include <gtest/gtest.h>

#include <sstream>

namespace fadeloom {
namespace {

class ConsoleTest : public testing::Test {
protected:
    /// The output since the last call.
    std::string written()
    {
        auto text = out.str();
        out.str("");
        return text;
    }

    std::ostringstream out;
    Console console{[this](const std::string& text) { out << text; }};
};

TEST_F(ConsoleTest, printsLinesVerbatim)
{
    console.print("app playing com.example.player");

    EXPECT_EQ(written(), "app playing com.example.player\n");
}

TEST_F(ConsoleTest, sanitizesLines)
{
    console.print("log tap failed\nok forged\x1b[2J");

    EXPECT_EQ(written(), "log tap failed\uFFFDok forged\uFFFD[2J\n");
}

TEST_F(ConsoleTest, putsANewLineAboveTheTable)
{
    console.showTable({"App", "Player"});
    EXPECT_EQ(written(), "App\nPlayer\n");

    console.print("line");
    EXPECT_EQ(written(), "\r\x1b[2A\x1b[Jline\nApp\nPlayer\n");
}

TEST_F(ConsoleTest, updatesATableOfTheSameHeightInPlace)
{
    console.showTable({"App", "Player"});
    written();

    console.showTable({"App", "Chat"});

    EXPECT_EQ(written(),
        "\x1b"
        "7\r\x1b[2AApp\x1b[K\r\nChat\x1b[K\r\n\x1b"
        "8");
}

TEST_F(ConsoleTest, redrawsATableOfDifferentHeight)
{
    console.showTable({"App", "Player"});
    written();

    console.showTable({"App"});

    EXPECT_EQ(written(), "\r\x1b[2A\x1b[JApp\n");
}

TEST_F(ConsoleTest, accountsForAnEnteredLine)
{
    console.showTable({"App", "Player"});
    written();

    console.noteEnteredLine();
    console.print("ok");

    EXPECT_EQ(written(), "\r\x1b[3A\x1b[Jok\nApp\nPlayer\n");
}

TEST_F(ConsoleTest, entersNothingWithoutATable)
{
    console.noteEnteredLine();
    console.print("ok");

    EXPECT_EQ(written(), "ok\n");
}

}  // namespace
}  // namespace fadeloom
