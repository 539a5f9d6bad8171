// SPDX-License-Identifier: MIT
#include "commands/LineWords.h"

#include "commands/PrintableText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using testing::ElementsAre;

std::vector<std::string> words(std::string_view line)
{
    return wordsOf(line).value();
}

TEST(LineWords, areSeparatedBySpaces)
{
    EXPECT_THAT(words("  volume\tplayer   0.5\r"), ElementsAre("volume", "player", "0.5"));
    EXPECT_THAT(words(""), ElementsAre());
    EXPECT_THAT(words("   "), ElementsAre());
}

TEST(LineWords, mayContainSpacesBetweenDoubleQuotes)
{
    EXPECT_THAT(words("mute \"My Player\" on"), ElementsAre("mute", "My Player", "on"));
    EXPECT_THAT(words("My\" \"Player"), ElementsAre("My Player"));
    EXPECT_THAT(words("\"\""), ElementsAre(""));
}

TEST(LineWords, treatABackslashBetweenQuotesAsAnEscape)
{
    EXPECT_THAT(words(R"("a\"b\\c")"), ElementsAre(R"(a"b\c)"));
    EXPECT_THAT(words(R"(a\b)"), ElementsAre(R"(a\b)"));
}

TEST(LineWords, needTheirClosingQuote)
{
    EXPECT_EQ(wordsOf("mute \"My Player on"), std::unexpected("a double quote is not closed"));
    EXPECT_EQ(wordsOf("\"a\\"), std::unexpected("a double quote is not closed"));
}

TEST(LineWords, roundTripWithAsWord)
{
    for (const std::string text : {"plain", "My Player", "", R"(a"b\c)", R"(\")", "音楽 🎧"})
        EXPECT_THAT(words(asWord(text)), ElementsAre(text));
}

}  // namespace
}  // namespace fadeloom
