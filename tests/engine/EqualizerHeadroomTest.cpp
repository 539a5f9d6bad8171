// SPDX-License-Identifier: MIT
#include "engine/EqualizerHeadroom.h"

#include "engine/EQPresets.h"

#include <gtest/gtest.h>

#include <vector>

namespace fadeloom {
namespace {

// Tight enough to fail with other frequencies or another rate.
constexpr float loudnessTolerance = 0.002F;

float loudnessOf(const std::vector<float>& gains)
{
    return eqLoudnessGainDB(gains, 48000);
}

TEST(EqualizerHeadroom, flatCurveNeedsNone)
{
    EXPECT_EQ(loudnessOf(std::vector<float>(10, 0)), 0.0F);
    EXPECT_EQ(loudnessOf({}), 0.0F);
}

TEST(EqualizerHeadroom, cutsAreNotCompensated)
{
    EXPECT_EQ(loudnessOf(std::vector<float>(10, -12)), 0.0F);
}

TEST(EqualizerHeadroom, neighbouringBoostsAddUp)
{
    EXPECT_NEAR(loudnessOf(std::vector<float>(10, 12)), 15.5415F, loudnessTolerance);
    EXPECT_NEAR(loudnessOf(std::vector<float>(10, 6)), 7.3772F, loudnessTolerance);
    EXPECT_NEAR(loudnessOf({5, 4, 3, 1, -1, -1, 1, 3, 4, 5}), 3.0034F, loudnessTolerance);
}

TEST(EqualizerHeadroom, aBandIsWeightedByItsBandwidth)
{
    EXPECT_NEAR(loudnessOf({0, 0, 0, 0, 0, 12}), 3.1624F, loudnessTolerance);
    EXPECT_NEAR(loudnessOf({12}), 3.0057F, loudnessTolerance) << "its lower half is below what is heard";
    EXPECT_NEAR(loudnessOf({0, 0, 0, 0, 0, 0, 0, 0, 0, 12}), 1.62F, loudnessTolerance);
}

TEST(EqualizerHeadroom, growsWithEveryBoost)
{
    EXPECT_LT(loudnessOf({3}), loudnessOf({6}));
    EXPECT_LT(loudnessOf({6}), loudnessOf({6, 3}));
}

TEST(EqualizerHeadroom, withoutASampleRateThereIsNone)
{
    EXPECT_EQ(eqLoudnessGainDB(std::vector<float>(10, 12), 0), 0.0F);
}

TEST(EqualizerHeadroom, everyPresetHasAFigureOfAFewDecibels)
{
    for (const auto& preset : EQPresets::all()) {
        EXPECT_GE(loudnessOf(preset.gains), 0.0F) << preset.name;
        EXPECT_LT(loudnessOf(preset.gains), 7.0F) << preset.name;
    }
}

}  // namespace
}  // namespace fadeloom
