// SPDX-License-Identifier: MIT
#include "engine/RecordingTimeline.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using testing::Each;
using testing::IsEmpty;

class RecordingTimelineTest : public testing::Test {
protected:
    static constexpr double rate = 1000;  // A frame is a millisecond.
    static constexpr std::int64_t cycle = 10;

    /// Cycles of the device `clock` from a given time on, at the app's level; the device's count continues from
    /// `frame`.
    static void play(RecordingTimeline& sound, HostTime from, int cycles, float level, std::int64_t frame,
        std::uint32_t clock = 1)
    {
        const std::vector<float> samples(2 * cycle, level);
        for (int i = 0; i < cycles; ++i)
            sound.add({.clock = clock, .frame = frame + i * cycle, .host = from + i * 10ms}, samples);
    }
    /// "30x1 20x0" for 30 frames at level 1 and 20 frames of silence.
    static std::string runs(const std::vector<float>& samples)
    {
        std::string text;
        for (std::size_t i = 0; i < samples.size();) {
            const auto end = std::find_if(samples.begin() + static_cast<std::ptrdiff_t>(i), samples.end(),
                [&](float sample) { return sample != samples[i]; });
            const auto next = static_cast<std::size_t>(end - samples.begin());
            text += (text.empty() ? "" : " ") + std::to_string((next - i) / 2) + "x"
                + std::to_string(static_cast<int>(samples[i]));
            i = next;
        }
        return text;
    }

    CycleClocks clocks;
    RecordingTimeline timeline{clocks, rate, 1s};
};

TEST_F(RecordingTimelineTest, beginsWithTheCycleOfItsStart)
{
    play(timeline, 1s + 7ms, 3, 1, 500);

    EXPECT_EQ(runs(timeline.takeRest(1s + 40ms)), "30x1");
}

TEST_F(RecordingTimelineTest, beginsWithSilenceWhenTheAppIsPaused)
{
    play(timeline, 3s, 3, 1, 500);

    EXPECT_EQ(runs(timeline.takeRest(3s + 35ms)), "2000x0 30x1");
}

TEST_F(RecordingTimelineTest, isSilentForAsLongAsTheAppWas)
{
    play(timeline, 1s, 3, 1, 500);
    play(timeline, 16s, 3, 2, 530);

    EXPECT_EQ(runs(timeline.takeRest(16s + 30ms)), "30x1 14970x0 30x2");
}

TEST_F(RecordingTimelineTest, isSilentToItsEndWhereNothingPlays)
{
    EXPECT_EQ(runs(timeline.takeRest(3s)), "2000x0");
}

TEST_F(RecordingTimelineTest, endsWithTheSoundOrASilenceThatIsWorthIt)
{
    play(timeline, 1s, 3, 1, 500);
    EXPECT_EQ(runs(timeline.takeRest(1s + 60ms)), "30x1") << "the cycle of the end is missing";

    RecordingTimeline other(clocks, rate, 1s);
    play(other, 1s, 3, 1, 500);
    EXPECT_EQ(runs(other.takeRest(1s + 61ms)), "30x1 31x0");
}

TEST_F(RecordingTimelineTest, isTakenPieceByPiece)
{
    play(timeline, 1s, 5, 1, 500);

    EXPECT_EQ(runs(timeline.takeUntil(1s + 20ms)), "20x1");
    EXPECT_THAT(timeline.takeUntil(1s + 20ms), IsEmpty());
    EXPECT_THAT(timeline.takeUntil(500ms), IsEmpty());
    play(timeline, 1s + 50ms, 1, 2, 550);
    EXPECT_EQ(runs(timeline.takeUntil(1s + 100ms)), "30x1 10x2 40x0");
    EXPECT_EQ(runs(timeline.takeRest(1s + 200ms)), "100x0");
}

TEST_F(RecordingTimelineTest, dropsWhatComesTooLate)
{
    play(timeline, 1s, 1, 1, 500);
    EXPECT_EQ(runs(timeline.takeUntil(1s + 15ms)), "10x1 5x0");

    play(timeline, 1s + 10ms, 1, 2, 510);

    EXPECT_EQ(runs(timeline.takeRest(1s + 20ms)), "5x2");
}

TEST_F(RecordingTimelineTest, addsUpWhatTheAppPlaysOnSeveralDevices)
{
    play(timeline, 1s, 4, 1, 500, 1);
    play(timeline, 1s + 20ms, 4, 2, 9000, 2);

    EXPECT_EQ(runs(timeline.takeRest(1s + 60ms)), "20x1 20x3 20x2");
}

TEST_F(RecordingTimelineTest, continuesWhenTheAppMovesToAnotherDevice)
{
    play(timeline, 1s, 3, 1, 500, 1);
    play(timeline, 1s + 50ms, 3, 2, 9000, 2);

    EXPECT_EQ(runs(timeline.takeRest(1s + 80ms)), "30x1 20x0 30x2");
}

// Two apps pause in turn, for ten minutes, on a device that drifts and stops when both are silent. Wherever both play,
// their samples are still aligned.
TEST_F(RecordingTimelineTest, staysInStepWithAnotherRecordingToTheSample)
{
    constexpr double drift = 1.0001;
    RecordingTimeline other(clocks, rate, 1s + 3ms);
    std::vector<float> first;
    std::vector<float> second;
    const auto append = [](std::vector<float>& to, const std::vector<float>& more) {
        to.insert(to.end(), more.begin(), more.end());
    };

    std::int64_t frame = 700;
    for (int i = 0; i < 60'000; ++i) {
        const int second10ms = i % 3000;
        const bool isFirstPlaying = second10ms < 1000 || second10ms >= 2500;
        const bool isSecondPlaying = second10ms < 500 || second10ms >= 2000;
        const HostTime host = 1s + HostTime(static_cast<std::int64_t>(i * 10e6 * drift));
        std::vector<float> samples(2 * cycle);
        for (std::size_t k = 0; k < samples.size(); ++k)
            samples[k] = static_cast<float>(i * 100 + static_cast<int>(k / 2) + 1);
        if (isFirstPlaying)
            timeline.add({.clock = 1, .frame = frame, .host = host}, samples);
        if (isSecondPlaying)
            other.add({.clock = 1, .frame = frame, .host = host}, samples);
        if (isFirstPlaying || isSecondPlaying)
            frame += cycle;
        if (i % 10 == 9) {
            append(first, timeline.takeUntil(host - 300ms));
            append(second, other.takeUntil(host - 300ms));
        }
    }
    const auto end = 1s + HostTime(static_cast<std::int64_t>(60'000 * 10e6 * drift));
    append(first, timeline.takeRest(end));
    append(second, other.takeRest(end));

    EXPECT_NEAR(static_cast<double>(first.size()) / 2, 600'000 * drift, 10 + 20 + 20);
    const auto begin = std::ranges::find(first, second.front()) - first.begin();
    std::size_t together = 0;
    std::size_t apart = 0;
    for (std::size_t i = 0; i < second.size() && i + static_cast<std::size_t>(begin) < first.size(); ++i) {
        const float a = first[i + static_cast<std::size_t>(begin)];
        if (a == 0 || second[i] == 0)
            continue;
        ++(a == second[i] ? together : apart);
    }
    EXPECT_GT(together, 190'000U);
    EXPECT_EQ(apart, 0U);
}

}  // namespace
}  // namespace fadeloom
