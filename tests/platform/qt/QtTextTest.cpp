// SPDX-License-Identifier: MIT
#include "platform/qt/QtText.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

TEST(QtText, lowersEveryScript)
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

    EXPECT_EQ(text.lowercased("TITLE"), "title");  // A Turkish interface would make another letter of the I.
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

}  // namespace
}  // namespace fadeloom
