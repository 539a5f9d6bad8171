// SPDX-License-Identifier: MIT
#include "engine/CycleClocks.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;

class CycleClocksTest : public testing::Test {
protected:
    static constexpr double rate = 48000;
    static constexpr std::int64_t cycle = 480;  // 10 ms.

    std::int64_t place(std::int64_t frame, HostTime host, std::uint32_t clock = 1)
    {
        return clocks.frameAt({.clock = clock, .frame = frame, .host = host}, rate, cycle);
    }

    CycleClocks clocks;
};

TEST_F(CycleClocksTest, followTheCountWithSampleAccuracyDespiteHostJitter)
{
    const auto first = place(5000, 1s);

    EXPECT_EQ(place(5480, 1s + 13ms), first + 480);
    EXPECT_EQ(place(5960, 1s + 19ms), first + 960);
    EXPECT_EQ(place(15000, 1s + HostTime(10000 * 1s) / 48000), first + 10000);
}

TEST_F(CycleClocksTest, followTheHostWhenTheCountStopped)
{
    const auto first = place(5000, 1s);

    EXPECT_EQ(place(5480, 16s), first + 15 * 48000);
    EXPECT_EQ(place(5960, 16s + 10ms), first + 15 * 48000 + 480);
}

TEST_F(CycleClocksTest, followTheHostWhenTheCountRestarts)
{
    const auto first = place(5'000'000, 1s);

    EXPECT_EQ(place(0, 3s), first + 2 * 48000);
    EXPECT_EQ(place(480, 3s + 10ms), first + 2 * 48000 + 480);
}

TEST_F(CycleClocksTest, placeNothingOverWhatCameBefore)
{
    const auto first = place(5000, 1s);

    EXPECT_EQ(place(100'000, 1s + 1ms), first + cycle);
}

TEST_F(CycleClocksTest, placeACycleConsistentlyForAllCallersAtAnyTime)
{
    const auto before = place(5000, 1s);
    const auto after = place(5480, 16s);

    EXPECT_EQ(place(5000, 1s), before);
    EXPECT_EQ(place(4520, 1s - 10ms), before - 480);
    EXPECT_EQ(place(5480, 16s), after);
}

TEST_F(CycleClocksTest, tolerateADriftingDevice)
{
    // 150 ppm slower than the host's clock, for three hours: 1.6 s.
    const auto first = place(0, 0s);
    std::int64_t counted = 0;
    for (; counted < std::int64_t{3} * 3600 * 48000; counted += 480) {
        const auto host =
            HostTime(static_cast<std::int64_t>(static_cast<double>(counted) / rate * 1.00015e9));
        ASSERT_EQ(place(counted, host), first + counted);
    }
}

TEST_F(CycleClocksTest, detectGradualLossOfFrames)
{
    // 5 ms are lost per second: the count continues as if nothing had happened.
    const auto first = place(0, 0s);
    std::int64_t last = 0;
    for (int second = 1; second <= 60; ++second) {
        const auto host = second * (1s + 5ms);
        last = place(second * 48000, host);
        EXPECT_NEAR(static_cast<double>(last - first), std::chrono::duration<double>(host).count() * rate,
            0.035 * rate);
    }
    EXPECT_GT(last - first, 60 * 48000 + 12'000);
}

TEST_F(CycleClocksTest, haveATimelineForEachClock)
{
    const auto first = place(5000, 1s, 1);
    (void)place(77, 1s, 2);

    EXPECT_EQ(place(5480, 1s + 10ms, 1), first + 480);
}

TEST_F(CycleClocksTest, placeAMomentByTheLastCycleOfItsClock)
{
    const auto first = place(5000, 1s);

    EXPECT_EQ(clocks.frameAt(HostTime(1s), 1, rate), first);
    EXPECT_EQ(clocks.frameAt(HostTime(2s), 1, rate), first + 48000);
    EXPECT_EQ(clocks.frameAt(HostTime(500ms), 1, rate), first - 24000);
}

}  // namespace
}  // namespace fadeloom
