// SPDX-License-Identifier: MIT
#include "engine/EqualizerDesign.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

namespace fadeloom {
namespace {

constexpr BiquadCoefficients identity{};
constexpr double nearlyEqual = 1e-9;  // Decibels.

std::vector<float> allBandsAt(float gain)
{
    return std::vector<float>(eqBandCount, gain);
}

TEST(Equalizer, flatGainsAreTenIdentities)
{
    EXPECT_EQ(eqCoefficients(allBandsAt(0), 48000), EQCoefficients{});
    EXPECT_EQ(eqCoefficients(allBandsAt(-0.0F), 48000), EQCoefficients{});
}

TEST(Equalizer, bandsWithoutAGainAreFlat)
{
    const std::vector<float> gains{6, -6, 3};

    const auto sections = eqCoefficients(gains, 48000);

    for (std::size_t band = 0; band < sections.size(); ++band)
        EXPECT_EQ(sections[band] == identity, band >= 3) << band;
    EXPECT_EQ(eqCoefficients({}, 48000), EQCoefficients{});
}

TEST(Equalizer, gainsBeyondTheTenthAreIgnored)
{
    const std::vector<float> twelve(12, 5);

    EXPECT_EQ(eqCoefficients(twelve, 48000), eqCoefficients(allBandsAt(5), 48000));
}

TEST(Equalizer, gainsAreLimitedToTwelveDecibels)
{
    EXPECT_EQ(eqCoefficients(allBandsAt(15), 48000), eqCoefficients(allBandsAt(12), 48000));
    EXPECT_EQ(eqCoefficients(allBandsAt(-20), 48000), eqCoefficients(allBandsAt(-12), 48000));
    EXPECT_EQ(eqCoefficients(allBandsAt(std::numeric_limits<float>::infinity()), 48000),
        eqCoefficients(allBandsAt(12), 48000));
}

TEST(Equalizer, aNaNGainIsFlat)
{
    EXPECT_EQ(eqCoefficients(allBandsAt(std::numeric_limits<float>::quiet_NaN()), 48000), EQCoefficients{});
}

TEST(Equalizer, bandTooNearHalfTheSampleRateIsDropped)
{
    EXPECT_EQ(eqCoefficients(allBandsAt(6), 32000)[9], identity);
    EXPECT_NE(eqCoefficients(allBandsAt(6), 32000)[8], identity);
    EXPECT_NE(eqCoefficients(allBandsAt(6), 44100)[9], identity);

    const double boundary = 16000 / 0.45;
    EXPECT_EQ(eqCoefficients(allBandsAt(6), boundary - 1)[9], identity);
    EXPECT_NE(eqCoefficients(allBandsAt(6), boundary + 1)[9], identity);
}

TEST(Equalizer, withoutASampleRateEveryBandIsFlat)
{
    for (const double rate : {0.0, -48000.0, std::nan(""), std::numeric_limits<double>::infinity()})
        EXPECT_EQ(eqCoefficients(allBandsAt(6), rate), EQCoefficients{}) << rate;
}

TEST(Equalizer, aSectionHasTheTextbookCoefficients)
{
    // 1 kHz, +6 dB, at 48 kHz, computed independently: A = 10^0.15, ω = π/24, α = sin ω / 2.82.
    constexpr double tolerance = 1e-12;
    const std::vector<float> gains{0, 0, 0, 0, 0, 6};

    const auto section = eqCoefficients(gains, 48000)[5];

    EXPECT_NEAR(section.b0, 1.0315779106167673, tolerance);
    EXPECT_NEAR(section.b1, -1.9199761435975966, tolerance);
    EXPECT_NEAR(section.b2, 0.9049656314387664, tolerance);
    EXPECT_NEAR(section.a1, -1.9199761435975966, tolerance);
    EXPECT_NEAR(section.a2, 0.9365435420555338, tolerance);
}

TEST(Equalizer, eachBandHasItsGainAtItsCentreAndNoneAtZeroHertz)
{
    for (const double rate : {44100.0, 48000.0, 96000.0, 192000.0}) {
        for (std::size_t band = 0; band < eqBandFrequencies.size(); ++band) {
            for (const float gain : {-12.0F, -3.5F, 0.25F, 7.0F, 12.0F}) {
                auto gains = allBandsAt(0);
                gains[band] = gain;

                const auto sections = eqCoefficients(gains, rate);

                EXPECT_EQ(sections[band].b1, sections[band].a1);
                EXPECT_NEAR(eqResponseDB(sections, eqBandFrequencies[band], rate), double{gain}, nearlyEqual);
                EXPECT_NEAR(eqResponseDB(sections, 0, rate), 0, nearlyEqual);
            }
        }
    }
}

TEST(Equalizer, responseIsTheSumOfTheBands)
{
    const std::vector<float> both{0, 0, 0, 0, 6, 4};
    const std::vector<float> lower{0, 0, 0, 0, 6};
    const std::vector<float> upper{0, 0, 0, 0, 0, 4};

    const double sum = eqResponseDB(eqCoefficients(lower, 48000), 700, 48000)
        + eqResponseDB(eqCoefficients(upper, 48000), 700, 48000);

    EXPECT_NEAR(eqResponseDB(eqCoefficients(both, 48000), 700, 48000), sum, nearlyEqual);
}

}  // namespace
}  // namespace fadeloom
