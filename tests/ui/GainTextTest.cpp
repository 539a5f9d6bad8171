// SPDX-License-Identifier: MIT
#include "ui/GainText.h"

#include <gtest/gtest.h>

#include <cmath>

namespace fadeloom {
namespace {

TEST(GainText, aGainHasItsSign)
{
    EXPECT_EQ(decibelText(0), "0 dB");
    EXPECT_EQ(decibelText(3), "+3 dB");
    EXPECT_EQ(decibelText(-4), "-4 dB");
}

TEST(GainText, aSliderStoresWholeDecibelsWithinTheRange)
{
    EXPECT_EQ(wholeGain(2.4), 2);
    EXPECT_EQ(wholeGain(-2.6), -3);
    EXPECT_EQ(wholeGain(12.9), 12);
    EXPECT_EQ(wholeGain(-40), -12);
}

TEST(GainText, aGainThatRoundsToZeroHasNoSign)
{
    EXPECT_FALSE(std::signbit(wholeGain(-0.2)));
}

TEST(GainText, aBandIsDescribedByFrequencyAndGain)
{
    EXPECT_EQ(bandHelp(5, 3), "1k Hz: +3 dB");
    EXPECT_EQ(bandHelp(0, 0), "32 Hz: 0 dB");
    EXPECT_EQ(bandLabel(9), "16k");
}

}  // namespace
}  // namespace fadeloom
