// SPDX-License-Identifier: MIT
#include "engine/GainSmoother.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace fadeloom {
namespace {

TEST(GainSmoother, coversMostOfTheDistanceInOneTimeConstant)
{
    constexpr int framesInTwentyMilliseconds = 960;
    GainSmoother smoother{.current = 0, .coefficient = onePoleCoefficient(48000, 0.02)};

    for (int frame = 0; frame < framesInTwentyMilliseconds; ++frame)
        smoother.approach(1);

    EXPECT_NEAR(smoother.current, 1 - std::exp(-1.0), 1e-3);
}

TEST(GainSmoother, reachesItsTargetExactly)
{
    GainSmoother smoother{.current = 1, .coefficient = onePoleCoefficient(48000, 0.02)};
    int frames = 0;

    while (smoother.current != 0 && frames < 48000) {
        const float before = smoother.current;
        smoother.approach(0);
        EXPECT_LT(smoother.current, before);
        EXPECT_TRUE(smoother.current == 0 || smoother.current >= GainSmoother::snapDistance);
        ++frames;
    }

    EXPECT_EQ(smoother.current, 0.0F);
    EXPECT_NEAR(frames, 0.02 * 48000 * std::log(10000), 50);
}

TEST(GainSmoother, staysOnItsTarget)
{
    GainSmoother smoother{.current = 0.3F, .coefficient = onePoleCoefficient(44100, 0.02)};

    smoother.approach(0.3F);

    EXPECT_EQ(smoother.current, 0.3F);
}

TEST(GainSmoother, anImpossibleSampleRateIsTakenAsOneHertz)
{
    const float atOneHertz = static_cast<float>(1 - std::exp(-1 / 0.3));

    EXPECT_EQ(onePoleCoefficient(0, 0.3), atOneHertz);
    EXPECT_EQ(onePoleCoefficient(-44100, 0.3), atOneHertz);
    EXPECT_EQ(onePoleCoefficient(std::numeric_limits<double>::quiet_NaN(), 0.3), atOneHertz);
}

}  // namespace
}  // namespace fadeloom
