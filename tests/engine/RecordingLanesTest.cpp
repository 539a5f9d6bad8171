// SPDX-License-Identifier: MIT
#include "engine/RecordingLanes.h"

#include "tests/support/RealTimeGuard.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <thread>
#include <vector>

namespace fadeloom {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RecordingLanesTest : public testing::Test {
protected:
    void push(const char& writer, std::int64_t frame, const std::vector<float>& samples)
    {
        lanes.push(&writer, rate, {.clock = 1, .frame = frame}, samples);
    }
    /// "FRAME: SAMPLES" for each cycle.
    std::vector<std::string> drained()
    {
        std::vector<std::string> result;
        lanes.drain([&](const CycleTime& time, std::span<const float> samples) {
            auto text = std::to_string(time.frame) + ":";
            for (const float sample : samples)
                text += " " + std::to_string(static_cast<int>(sample));
            result.push_back(text);
        });
        return result;
    }

    static constexpr double rate = 8000;
    static constexpr std::array<char, 6> writers{};
    RecordingLanes lanes{rate};
};

TEST_F(RecordingLanesTest, deliverEveryCycleOnceWithItsTime)
{
    EXPECT_THAT(drained(), IsEmpty());
    push(writers[0], 10, {1, 2});
    push(writers[0], 11, {3, 4, 5, 6});

    EXPECT_THAT(drained(), ElementsAre("10: 1 2", "11: 3 4 5 6"));
    EXPECT_THAT(drained(), IsEmpty());
}

TEST_F(RecordingLanesTest, keepTheCyclesOfSeveralRenderersApart)
{
    push(writers[0], 10, {1, 2});
    push(writers[1], 10, {3, 4});
    push(writers[0], 11, {5, 6});

    EXPECT_THAT(drained(), ElementsAre("10: 1 2", "11: 5 6", "10: 3 4"));
}

TEST_F(RecordingLanesTest, acceptFourRenderersAndCountWhatOthersLose)
{
    for (std::size_t i = 0; i < 6; ++i)
        push(writers[i], static_cast<std::int64_t>(i), {0, 0, 0, 0});
    EXPECT_EQ(drained().size(), 4U);
    EXPECT_EQ(lanes.lostFrames(), 4U);

    lanes.release(&writers[2]);
    push(writers[5], 7, {1, 1});

    EXPECT_THAT(drained(), ElementsAre("7: 1 1"));
}

TEST_F(RecordingLanesTest, bufferFourSecondsAndThenDropWholeCycles)
{
    const std::vector<float> second(2 * static_cast<std::size_t>(rate), 1);
    int pushed = 0;
    while (lanes.lostFrames() == 0 && pushed < 20)
        push(writers[0], pushed++, second);

    EXPECT_GE(pushed, 5);
    EXPECT_EQ(lanes.lostFrames(), static_cast<std::uint64_t>(rate));
    EXPECT_EQ(drained().size(), static_cast<std::size_t>(pushed - 1));
}

TEST_F(RecordingLanesTest, acceptNothingAtAnotherRate)
{
    const std::array<float, 2> frame{1, 1};
    lanes.push(writers.data(), 2 * rate, {}, frame);

    EXPECT_THAT(drained(), IsEmpty());
    EXPECT_EQ(lanes.lostFrames(), 0U);
}

TEST_F(RecordingLanesTest, areRealTimeSafe)
{
    const int before = realTimeViolations();
    {
        const std::array<float, 128> cycle{};
        const RealTimeSection section;
        for (const auto& writer : writers)
            lanes.push(&writer, rate, {}, cycle);
    }

    EXPECT_EQ(realTimeViolations() - before, 0) << lastRealTimeViolation();
}

TEST_F(RecordingLanesTest, passAudioBetweenThreadsIntact)
{
    constexpr std::int64_t cycles = 20'000;
    std::jthread io([&] {
        for (std::int64_t frame = 0; frame < cycles; ++frame) {
            const std::array<float, 2> samples{static_cast<float>(frame), static_cast<float>(-frame)};
            const auto lost = lanes.lostFrames();
            lanes.push(writers.data(), rate, {.frame = frame}, samples);
            if (lanes.lostFrames() != lost)
                --frame;
        }
    });
    std::int64_t next = 0;
    while (next < cycles) {
        lanes.drain([&](const CycleTime& time, std::span<const float> samples) {
            ASSERT_EQ(time.frame, next);
            ASSERT_THAT(samples, ElementsAre(static_cast<float>(next), static_cast<float>(-next)));
            ++next;
        });
    }
}

}  // namespace
}  // namespace fadeloom
