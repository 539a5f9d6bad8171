// SPDX-License-Identifier: MIT
#include "platform/sndfile/Pcm24.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace fadeloom {
namespace {

constexpr std::int32_t highestStep = 0x7FFFFF;
constexpr std::int32_t lowestStep = -0x800000;

/// A number of steps as a sample; any that is representable as a float.
float steps(double count)
{
    return static_cast<float>(std::ldexp(count, -23));
}

std::vector<std::int32_t> converted(const std::vector<float>& samples)
{
    std::vector<std::int32_t> result(samples.size());
    convertToPcm24(samples, result);
    for (std::int32_t& step : result) {
        EXPECT_EQ(step & 0xFF, 0);
        step >>= 8;
    }
    return result;
}

TEST(Pcm24, fullScaleIs2To23Steps)
{
    EXPECT_THAT(converted({0, -0.0F, 0.5F, -0.5F, -1, steps(1), steps(-1), steps(8388607)}),
        ::testing::ElementsAre(0, 0, 0x400000, -0x400000, lowestStep, 1, -1, highestStep));
}

TEST(Pcm24, theNearestStepIsTaken)
{
    EXPECT_THAT(converted({steps(0.49), steps(0.51), steps(-0.49), steps(-0.51), steps(1000.25),
                    steps(-1000.75), steps(4194302.75)}),
        ::testing::ElementsAre(0, 1, 0, -1, 1000, -1001, 4194303));
}

TEST(Pcm24, halfwayTheEvenStepIsTaken)
{
    EXPECT_THAT(converted({steps(0.5), steps(1.5), steps(2.5), steps(-0.5), steps(-1.5), steps(-2.5),
                    steps(4194304.5), steps(8388605.5), steps(-8388605.5)}),
        ::testing::ElementsAre(0, 2, 2, 0, -2, -2, 4194304, 8388606, -8388606));
}

TEST(Pcm24, whatIsBeyondFullScaleIsClipped)
{
    const float infinity = std::numeric_limits<float>::infinity();
    const float largest = std::numeric_limits<float>::max();

    EXPECT_THAT(
        converted({steps(8388607.5), 1, 1.0001F, 2, largest, infinity}), ::testing::Each(highestStep));
    EXPECT_THAT(converted({-1, -1.0001F, -2, -largest, -infinity}), ::testing::Each(lowestStep));
}

TEST(Pcm24, nanIsSilence)
{
    const float quiet = std::numeric_limits<float>::quiet_NaN();
    const auto signalling = std::bit_cast<float>(0x7F800001U);

    EXPECT_THAT(converted({quiet, -quiet, signalling}), ::testing::Each(0));
}

TEST(Pcm24, everyStepRoundTrips)
{
    std::vector<float> samples;
    std::vector<std::int32_t> expected;
    for (std::int32_t step = lowestStep; step <= highestStep; ++step) {
        samples.push_back(steps(step));
        expected.push_back(step);
    }

    EXPECT_TRUE(converted(samples) == expected);
}

TEST(Pcm24, anyBitsAreConvertedByTheRules)
{
    std::mt19937 random{1};
    std::vector<float> samples(1'000'003);  // Not a multiple of a vector's size.
    std::ranges::generate(
        samples, [&] { return std::bit_cast<float>(static_cast<std::uint32_t>(random())); });
    // Most of the bit patterns above are tiny or huge; these are typical of audio.
    for (std::size_t i = 0; i < samples.size(); i += 2)
        samples[i] = std::uniform_real_distribution<float>{-1.1F, 1.1F}(random);

    const auto result = converted(samples);

    int wrong = 0;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double exact = std::isnan(samples[i]) ? 0 : std::ldexp(double{samples[i]}, 23);
        const double step = std::clamp<double>(std::nearbyint(exact), lowestStep, highestStep);
        wrong += step == result[i] ? 0 : 1;
    }
    EXPECT_EQ(wrong, 0);
}

}  // namespace
}  // namespace fadeloom
