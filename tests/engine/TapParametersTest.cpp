// SPDX-License-Identifier: MIT
#include "engine/TapParameters.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

namespace fadeloom {
namespace {

// Distinguishable sections: the first has b0 = 1, the next 2, and so on.
std::vector<BiquadCoefficients> numberedSections(int count)
{
    std::vector<BiquadCoefficients> sections;
    for (int number = 1; number <= count; ++number)
        sections.push_back({.b0 = double(number) + 0.5});
    return sections;
}

TEST(TapParameters, startByChangingNothing)
{
    TapParameters parameters;

    EXPECT_EQ(parameters.values, TapParameters::Values{});
    EXPECT_EQ(parameters.values.volume, 1.0F);
    EXPECT_FALSE(parameters.values.muted);
    EXPECT_EQ(parameters.values.duck, 1.0F);
    EXPECT_FALSE(parameters.values.eqEnabled);
    EXPECT_EQ(parameters.values.preamp, 1.0F);
    EXPECT_EQ(parameters.values.eqVersion, 0);
    EXPECT_EQ(parameters.coefficients, EQCoefficients{});
    EXPECT_EQ(parameters.peak, 0.0F);
    EXPECT_FALSE(parameters.audioSeen);
}

TEST(TapParameters, takeTheFirstTenSections)
{
    TapParameters parameters;

    parameters.setEQ(numberedSections(12));

    for (std::size_t band = 0; band < 10; ++band)
        EXPECT_EQ(parameters.coefficients[band].b0, double(band) + 1.5);
    EXPECT_EQ(parameters.values.eqVersion, 1);
}

TEST(TapParameters, keepTheSectionsThatAreNotGiven)
{
    TapParameters parameters;
    parameters.setEQ(numberedSections(10));

    parameters.setEQ(std::vector<BiquadCoefficients>(3, BiquadCoefficients{.b0 = 100}));

    EXPECT_EQ(parameters.coefficients[2].b0, 100);
    EXPECT_EQ(parameters.coefficients[3].b0, 4.5);
    EXPECT_EQ(parameters.coefficients[9].b0, 10.5);
    EXPECT_EQ(parameters.values.eqVersion, 2);
}

TEST(TapParameters, noSectionsAtAllAreStillANewVersion)
{
    TapParameters parameters;

    parameters.setEQ({});

    EXPECT_EQ(parameters.values.eqVersion, 1);
    EXPECT_EQ(parameters.coefficients, EQCoefficients{});
}

TEST(TapParameters, areUnlockedAfterwards)
{
    TapParameters parameters;

    parameters.setEQ(numberedSections(10));

    EXPECT_TRUE(parameters.lock.try_lock());
    parameters.lock.unlock();
}

TEST(TapParameters, peakIsZeroOnceItIsTaken)
{
    TapParameters parameters;
    parameters.peak = 0.7F;

    EXPECT_EQ(parameters.takePeak(), 0.7F);
    EXPECT_EQ(parameters.takePeak(), 0.0F);
}

}  // namespace
}  // namespace fadeloom
