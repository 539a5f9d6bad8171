// SPDX-License-Identifier: MIT
#include "ui/ElapsedText.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;

TEST(ElapsedText, secondsHaveTwoDigits)
{
    EXPECT_EQ(elapsedText(7s), "0:07");
    EXPECT_EQ(elapsedText(7999ms), "0:07");
    EXPECT_EQ(elapsedText(12min + 30s), "12:30");
}

TEST(ElapsedText, minutesContinueBeyondAnHour)
{
    EXPECT_EQ(elapsedText(75min), "75:00");
}

TEST(ElapsedText, aClockSetBackShowsZero)
{
    EXPECT_EQ(elapsedText(-5s), "0:00");
}

}  // namespace
}  // namespace fadeloom
