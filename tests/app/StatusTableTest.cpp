// SPDX-License-Identifier: MIT
#include "app/StatusTable.h"

#include "commands/PrintableText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

const StatusRow player = {
    .name = "Player", .output = "Desk Speakers", .volume = 0.5F, .isMuted = false, .level = 0.8F};
const StatusRow chat = {.name = "Chat", .output = "no output", .volume = 1, .isMuted = true};

TEST(StatusTable, alignsItsColumns)
{
    EXPECT_THAT(statusTable(std::vector{player, chat}, 80, 20),
        ElementsAre("App     Output         Volume      Level",  //
            "Player  Desk Speakers     50%   -12.0 dB",  //
            "Chat    no output       muted          -"));
}

TEST(StatusTable, alignsByVisibleGlyphs)
{
    auto wide = chat;
    wide.name = "音楽";

    const auto table = statusTable(std::vector{player, wide}, 80, 20);

    EXPECT_EQ(table[2], "音楽    no output       muted          -");
}

TEST(StatusTable, hasAHeadingEvenWithoutRows)
{
    EXPECT_THAT(statusTable({}, 80, 20), ElementsAre("App  Output  Volume      Level"));
}

TEST(StatusTable, neverExceedsTheWidth)
{
    auto longName = player;
    longName.name = std::string(300, 'x');
    longName.output = "出力装置の名前はとても長いので切られる";

    for (int columns = 0; columns <= 120; ++columns) {
        for (const auto& line : statusTable(std::vector{player, longName}, columns, 20))
            EXPECT_LE(displayWidth(line), columns);
    }
}

TEST(StatusTable, sharesTheWidthBetweenNameAndOutput)
{
    auto longBoth = player;
    longBoth.name = std::string(60, 'n');
    longBoth.output = std::string(60, 'o');

    const auto line = statusTable(std::vector{longBoth}, 61, 20)[1];

    EXPECT_EQ(line, std::string(19, 'n') + "…  " + std::string(19, 'o') + "…     50%   -12.0 dB");
}

TEST(StatusTable, sanitizesNames)
{
    auto hostile = player;
    hostile.name = "Player\n\x1b[2Jtap ready";

    for (const auto& line : statusTable(std::vector{hostile}, 80, 20)) {
        EXPECT_THAT(line, Not(HasSubstr("\n")));
        EXPECT_THAT(line, Not(HasSubstr("\x1b")));
    }
}

TEST(StatusTable, countsOmittedRows)
{
    const auto table = statusTable(std::vector(10, player), 80, 5);

    ASSERT_EQ(table.size(), 5);
    EXPECT_EQ(table.back(), "and 7 more");
    EXPECT_EQ(statusTable(std::vector(4, player), 80, 5).size(), 5);
}

TEST(LevelText, isInDecibelsWithOneDecimal)
{
    EXPECT_EQ(levelText(1), "0.0 dB");
    EXPECT_EQ(levelText(2.0F / 3), "-20.0 dB");
    EXPECT_EQ(levelText(0.01F), "-59.4 dB");
    EXPECT_EQ(levelText(0), "silent");
}

TEST(PercentText, isAWholeNumber)
{
    EXPECT_EQ(percentText(0.5F), "50%");
    EXPECT_EQ(percentText(1.25F), "125%");
    EXPECT_EQ(percentText(0.333F), "33%");
}

}  // namespace
}  // namespace fadeloom
