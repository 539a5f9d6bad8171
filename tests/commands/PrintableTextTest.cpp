// SPDX-License-Identifier: MIT
#include "commands/PrintableText.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using namespace std::string_literals;

TEST(Printable, leavesOrdinaryTextAlone)
{
    EXPECT_EQ(printable("Player 2 – Żółć 音楽 🎧 e\u0301"), "Player 2 – Żółć 音楽 🎧 e\u0301");
}

TEST(Printable, replacesControlCharacters)
{
    EXPECT_EQ(printable("a\nb\rc\td\x1b[2Je\x7f"), "a\uFFFDb\uFFFDc\uFFFDd\uFFFD[2Je\uFFFD");
    EXPECT_EQ(printable("a\0b"s), "a\uFFFDb");
    EXPECT_EQ(printable("a\u0085b\u009B2J"), "a\uFFFDb\uFFFD2J");
}

TEST(Printable, replacesBidirectionalControls)
{
    EXPECT_EQ(printable("a\u202Eb\u2066c\u2028d\u200Fe\uFEFF"), "a\uFFFDb\uFFFDc\uFFFDd\uFFFDe\uFFFD");
}

TEST(Printable, keepsJoiners)
{
    EXPECT_EQ(printable("\U0001F469\u200D\U0001F680"), "\U0001F469\u200D\U0001F680");
}

TEST(Printable, replacesEachInvalidByte)
{
    EXPECT_EQ(printable("a\xFF\xC3"), "a\uFFFD\uFFFD");
    EXPECT_EQ(printable("\xC0\xAF"), "\uFFFD\uFFFD");  // An overlong "/".
    EXPECT_EQ(printable("\xED\xA0\x80"), "\uFFFD\uFFFD\uFFFD");  // Half of a surrogate pair.
    EXPECT_EQ(printable("\xF4\x90\x80\x80"), "\uFFFD\uFFFD\uFFFD\uFFFD");  // Beyond the last code point.
    EXPECT_EQ(printable("\xE2\x82"), "\uFFFD\uFFFD");  // Truncated.
}

TEST(DisplayWidth, countsColumns)
{
    EXPECT_EQ(displayWidth(""), 0);
    EXPECT_EQ(displayWidth("Player"), 6);
    EXPECT_EQ(displayWidth("Żółć"), 4);
    EXPECT_EQ(displayWidth("音楽"), 4);
    EXPECT_EQ(displayWidth("🎧"), 2);
    EXPECT_EQ(displayWidth("e\u0301"), 1);
}

TEST(Fitted, padsOnEitherSide)
{
    EXPECT_EQ(fitted("ab", 4), "ab  ");
    EXPECT_EQ(fitted("ab", 4, Alignment::right), "  ab");
    EXPECT_EQ(fitted("音", 4), "音  ");
}

TEST(Fitted, truncatesWhatIsTooLong)
{
    EXPECT_EQ(fitted("Player", 6), "Player");
    EXPECT_EQ(fitted("Player", 5), "Play…");
    EXPECT_EQ(fitted("Player", 1), "…");
    EXPECT_EQ(fitted("Player", 0), "");
}

TEST(Fitted, neverCutsAWideCharacterInHalf)
{
    EXPECT_EQ(fitted("音楽家", 4), "音… ");
    EXPECT_EQ(fitted("音楽家", 5), "音楽…");
}

TEST(AsWord, quotesTextThatIsNotASingleWord)
{
    EXPECT_EQ(asWord("speakers"), "speakers");
    EXPECT_EQ(asWord("Desk Speakers"), "\"Desk Speakers\"");
    EXPECT_EQ(asWord(""), "\"\"");
    EXPECT_EQ(asWord("a\"b\\c"), "\"a\\\"b\\\\c\"");
    EXPECT_EQ(asWord("a\nb"), "a\uFFFDb");
}

}  // namespace
}  // namespace fadeloom
