// SPDX-License-Identifier: MIT
#include "platform/qt/QtText.h"

#include <QLocale>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace fadeloom {
namespace {

using ::testing::ElementsAre;

/// While an instance exists, this is the user's language.
class Language {
public:
    explicit Language(const char* locale) { QLocale::setDefault(QLocale{QString{locale}}); }
    Language(const Language&) = delete;
    Language& operator=(const Language&) = delete;
    ~Language() { QLocale::setDefault(old_); }

private:
    const QLocale old_;
};

const std::vector<const char*> locales{"C", "en_US", "pl_PL", "de_DE", "tr_TR", "el_GR", "ja_JP"};

std::vector<std::string> sorted(const Text& text, std::vector<std::string> words)
{
    std::ranges::sort(
        words, [&](const auto& one, const auto& other) { return text.compareLocalized(one, other) < 0; });
    return words;
}

TEST(QtText, lowercasesEveryScript)
{
    const QtText text;

    EXPECT_EQ(text.lowercased("Firefox 120"), "firefox 120");
    EXPECT_EQ(text.lowercased("ŻÓŁĆ Ärger ÉCOUTE"), "żółć ärger écoute");
    EXPECT_EQ(text.lowercased("ΜΟΥΣΙΚΗ МУЗЫКА"), "μουσικη музыка");
    EXPECT_EQ(text.lowercased("音楽 🎵"), "音楽 🎵");
}

TEST(QtText, doesNotFollowTheLanguageOfTheInterface)
{
    const QtText text;

    EXPECT_EQ(text.lowercased("TITLE"), "title");  // A Turkish interface would convert the I differently.
    EXPECT_EQ(text.lowercased("İ").substr(0, 1), "i");
}

TEST(QtText, bytesThatAreNotTextBecomeReplacementCharacters)
{
    const QtText text;

    EXPECT_EQ(text.lowercased("A\xff\xfe"
                              "B"),
        "a\uFFFD\uFFFDb");
    EXPECT_EQ(text.lowercased(std::string_view{"A\0B", 3}), (std::string{"a\0b", 3}));
    EXPECT_EQ(text.lowercased(""), "");
}

TEST(QtText, trimsWhiteSpaceAndLineBreaksAtTheEnds)
{
    const QtText text;

    EXPECT_EQ(text.trimmed(" \t\r\n\v\f Rock  and\tRoll \n"), "Rock  and\tRoll");
    EXPECT_EQ(text.trimmed("\u00A0\u0085\u2003\u3000\u2028żółć\u2029\u202F\u1680\u205F"), "żółć");
    EXPECT_EQ(text.trimmed("\u200B \u2060x"), "\u200B \u2060x") << "without a width, but no white space";
    EXPECT_EQ(text.trimmed(" \u00A0\n"), "");
    EXPECT_EQ(text.trimmed(""), "");
    EXPECT_EQ(text.trimmed(" \xff "), "\uFFFD");
    EXPECT_EQ(text.trimmed(std::string_view{" \0 ", 3}), (std::string{"\0", 1}));
}

TEST(QtText, comparesWithoutRegardToLetterCase)
{
    const QtText text;

    EXPECT_TRUE(text.equalIgnoringCase("Firefox", "fIREFOX"));
    EXPECT_TRUE(text.equalIgnoringCase("ŻÓŁĆ", "żółć"));
    EXPECT_TRUE(text.equalIgnoringCase("МУЗЫКА", "музыка"));
    EXPECT_TRUE(text.equalIgnoringCase("🎵 Rock", "🎵 rock"));
    EXPECT_TRUE(text.equalIgnoringCase("", ""));

    EXPECT_FALSE(text.equalIgnoringCase("Rock", "Rocks"));
    EXPECT_FALSE(text.equalIgnoringCase("Łoś", "Los"));
    EXPECT_FALSE(text.equalIgnoringCase("é", "e"));
    EXPECT_FALSE(text.equalIgnoringCase("🎵", "🎶"));
    EXPECT_FALSE(text.equalIgnoringCase("a", ""));
    EXPECT_FALSE(text.equalIgnoringCase(std::string_view{"a\0b", 3}, std::string_view{"a\0c", 3}));
}

TEST(QtText, lettersThatFoldToSeveralEqualThem)
{
    const QtText text;

    EXPECT_TRUE(text.equalIgnoringCase("Straße", "STRASSE"));
    EXPECT_TRUE(text.equalIgnoringCase("STRAẞE", "strasse"));
    EXPECT_TRUE(text.equalIgnoringCase("e\uFB03cient", "EFFICIENT"));
    EXPECT_TRUE(text.equalIgnoringCase("ΣΊΣΥΦΟΣ", "σίσυφος"));
    EXPECT_TRUE(text.equalIgnoringCase("σίσυφος", "σίσυφοσ"));
    EXPECT_TRUE(text.equalIgnoringCase("ᾳ", "ΑΙ"));
    EXPECT_TRUE(text.equalIgnoringCase("և", "ԵՒ"));
}

TEST(QtText, decomposedLettersEqualPrecomposedOnes)
{
    const QtText text;

    EXPECT_TRUE(text.equalIgnoringCase("caf\u00E9", "CAFE\u0301"));
    EXPECT_TRUE(text.equalIgnoringCase("a\u0323\u0307", "A\u0307\u0323"));
    EXPECT_TRUE(text.equalIgnoringCase("\u0344", "\u0308\u0301"));
    EXPECT_TRUE(text.equalIgnoringCase("\u212B", "å"));
}

TEST(QtText, caseIsTheSameInEveryLanguage)
{
    const QtText text;
    for (const auto* const locale : locales) {
        const Language language{locale};

        EXPECT_TRUE(text.equalIgnoringCase("TITLE", "title")) << locale;
        EXPECT_FALSE(text.equalIgnoringCase("İ", "i")) << locale;
        EXPECT_FALSE(text.equalIgnoringCase("ı", "i")) << locale;
        EXPECT_FALSE(text.equalIgnoringCase("ı", "I")) << locale;
        EXPECT_TRUE(text.equalIgnoringCase("KIZILIRMAK ıssız ı", "kizilirmak ısSıZ ı")) << locale;
    }
}

TEST(QtText, invalidTextEqualsReplacementCharacters)
{
    const QtText text;

    EXPECT_TRUE(text.equalIgnoringCase("A\xff", "a\uFFFD"));
    EXPECT_EQ(text.compareLocalized("a\xff", "A\uFFFD"), std::weak_ordering::equivalent);
}

TEST(QtText, orderHasNoRegardToLetterCaseInAnyLanguage)
{
    const QtText text;
    for (const auto* const locale : locales) {
        const Language language{locale};

        EXPECT_THAT(sorted(text, {"beta", "Alpha", "Gamma"}), ElementsAre("Alpha", "beta", "Gamma"))
            << locale;
        EXPECT_EQ(text.compareLocalized("Player", "pLAYER"), std::weak_ordering::equivalent) << locale;
        EXPECT_EQ(text.compareLocalized("caf\u00E9", "CAFE\u0301"), std::weak_ordering::equivalent) << locale;
        EXPECT_EQ(text.compareLocalized("", ""), std::weak_ordering::equivalent) << locale;
        EXPECT_EQ(text.compareLocalized("", "a"), std::weak_ordering::less) << locale;
        EXPECT_EQ(text.compareLocalized("resume", "résumé"), std::weak_ordering::less) << locale;
        EXPECT_EQ(text.compareLocalized("résumé", "resumes"), std::weak_ordering::less) << locale;
    }
}

TEST(QtText, orderIsThatOfTheUsersLanguage)
{
    const QtText text;
    const auto orderIn = [&](const char* locale, std::vector<std::string> words) {
        const Language language{locale};
        std::ranges::reverse(words);
        return sorted(text, words);
    };

    EXPECT_THAT(orderIn("pl_PL", {"az", "Ąb", "ba", "lz", "Łą", "ma", "za", "źa", "Ża"}),
        ElementsAre("az", "Ąb", "ba", "lz", "Łą", "ma", "za", "źa", "Ża"));
    EXPECT_THAT(orderIn("de_DE", {"Ar", "Ärger", "As", "Straße", "Straßen", "Strast"}),
        ElementsAre("Ar", "Ärger", "As", "Straße", "Straßen", "Strast"));
    EXPECT_THAT(orderIn("sv_SE", {"ar", "as", "z", "ärger"}), ElementsAre("ar", "as", "z", "ärger"));
    EXPECT_THAT(orderIn("tr_TR", {"hz", "Ia", "ıb", "ız", "ia", "İb", "j"}),
        ElementsAre("hz", "Ia", "ıb", "ız", "ia", "İb", "j"));
    EXPECT_THAT(orderIn("el_GR", {"Άλφα", "αλφάβητο", "Βήτα", "ωμέγα"}),
        ElementsAre("Άλφα", "αλφάβητο", "Βήτα", "ωμέγα"));
}

TEST(QtText, orderFollowsAChangeOfLanguage)
{
    const QtText text;

    for (int i = 0; i < 2; ++i) {
        {
            const Language language{"de_DE"};
            EXPECT_EQ(text.compareLocalized("ä", "z"), std::weak_ordering::less);
        }
        const Language language{"sv_SE"};
        EXPECT_EQ(text.compareLocalized("ä", "z"), std::weak_ordering::greater);
    }
}

TEST(QtText, orderIsConsistentInEveryLanguage)
{
    const QtText text;
    const std::string large(100'000, 'x');
    const std::vector<std::string> words{"", " ", "a", "A", "á", "a\u0301", "ab", "a b", "a-b", "ä", "ß",
        "ss", "i", "I", "ı", "İ", "10", "9", "🎵", "🎵a", "音楽", "\x01", "a\x01", "\xff",
        std::string{"\0", 1}, "σ", "ς", large, large + "y"};
    for (const auto* const locale : locales) {
        const Language language{locale};
        std::vector<std::vector<std::weak_ordering>> order;
        for (const auto& one : words) {
            auto& row = order.emplace_back();
            for (const auto& other : words)
                row.push_back(text.compareLocalized(one, other));
        }

        const auto areInOrder = [&](std::size_t one, std::size_t other) { return order[one][other] <= 0; };
        for (std::size_t a = 0; a < words.size(); ++a)
            for (std::size_t b = 0; b < words.size(); ++b) {
                EXPECT_EQ(order[a][b], 0 <=> order[b][a]) << locale << ": " << words[a] << ", " << words[b];
                for (std::size_t c = 0; c < words.size(); ++c)
                    EXPECT_TRUE(!areInOrder(a, b) || !areInOrder(b, c) || areInOrder(a, c))
                        << locale << ": " << words[a] << ", " << words[b] << ", " << words[c];
            }
        EXPECT_EQ(order[words.size() - 2].back(), std::weak_ordering::less) << locale;
    }
}

}  // namespace
}  // namespace fadeloom
