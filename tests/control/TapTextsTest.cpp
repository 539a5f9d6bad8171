// SPDX-License-Identifier: MIT
#include "control/TapTexts.h"

#include <gtest/gtest.h>

#include <array>

namespace fadeloom {
namespace {

TEST(FailureKey, namesTheProcessesAndTheOutput)
{
    EXPECT_EQ(failureKey(std::array<AudioProcessID, 2>{412, 415}, "speakers"), "[412, 415]|speakers");
    EXPECT_EQ(failureKey(std::array<AudioProcessID, 1>{9}, ""), "[9]|");
    EXPECT_EQ(failureKey({}, "speakers"), "[]|speakers");
}

TEST(DecimalText, alwaysHasAFractionalPart)
{
    EXPECT_EQ(decimalText(48000), "48000.0");
    EXPECT_EQ(decimalText(44100.5), "44100.5");
    EXPECT_EQ(decimalText(0.1), "0.1");
    EXPECT_EQ(decimalText(1e21), "1000000000000000000000.0");
}

}  // namespace
}  // namespace fadeloom
