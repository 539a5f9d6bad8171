// SPDX-License-Identifier: MIT
#include "engine/PeakLimiter.h"

#include "engine/GainSmoother.h"

#include <gtest/gtest.h>

#include <cmath>

namespace fadeloom {
namespace {

constexpr float tolerance = 1e-6F;

TEST(PeakLimiter, keepsSamplesBelowTheCeiling)
{
    PeakLimiter limiter{.release = 0.01F};

    EXPECT_EQ(limiter.reductionFor(0.891F), 1.0F);
    EXPECT_EQ(limiter.reductionFor(0), 1.0F);
}

TEST(PeakLimiter, limitsAPeakImmediately)
{
    PeakLimiter limiter{.release = 0.01F};

    EXPECT_NEAR(limiter.reductionFor(2) * 2, 0.891F, tolerance);
    EXPECT_NEAR(limiter.reductionFor(3) * 3, 0.891F, tolerance);
}

TEST(PeakLimiter, releasesExponentiallyAfterAPeak)
{
    constexpr int framesInEightyMilliseconds = 3840;
    PeakLimiter limiter{.release = onePoleCoefficient(48000, 0.08)};
    const float atThePeak = limiter.reductionFor(1.782F);

    for (int frame = 0; frame < framesInEightyMilliseconds; ++frame)
        (void)limiter.reductionFor(0);

    EXPECT_NEAR(1 - limiter.reduction, (1 - atThePeak) * std::exp(-1.0F), 1e-3);
}

TEST(PeakLimiter, aSmallerPeakDuringReleaseIsLimitedToo)
{
    PeakLimiter limiter{.release = onePoleCoefficient(48000, 0.08)};
    (void)limiter.reductionFor(2);

    for (int frame = 0; frame < 48000; ++frame)
        EXPECT_LE(limiter.reductionFor(1.2F) * 1.2F, 0.891F + tolerance);
    EXPECT_NEAR(limiter.reduction * 1.2F, 0.891F, tolerance);
}

}  // namespace
}  // namespace fadeloom
