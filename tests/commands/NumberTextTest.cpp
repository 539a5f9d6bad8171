// SPDX-License-Identifier: MIT
#include "commands/NumberText.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

TEST(NumberText, readsWholeNumbersAndFractions)
{
    EXPECT_EQ(numberOf("0.5"), 0.5F);
    EXPECT_EQ(numberOf("1"), 1.0F);
    EXPECT_EQ(numberOf("-2.25"), -2.25F);
    EXPECT_EQ(numberOf("5e-1"), 0.5F);
}

TEST(NumberText, readsNothingElse)
{
    for (const auto* const text : {"", " 1", "1 ", "0,5", "half", "1.0x", "nan", "inf", "1e99", "--1"})
        EXPECT_EQ(numberOf(text), std::nullopt) << text;
}

TEST(NumberText, writesTheShortestForm)
{
    EXPECT_EQ(numberText(1), "1");
    EXPECT_EQ(numberText(0.1F), "0.1");
    EXPECT_EQ(numberText(1.25F), "1.25");
}

}  // namespace
}  // namespace fadeloom
