// SPDX-License-Identifier: MIT
#include "engine/Recording.h"

#include "platform/simulated/SimulatedAudioFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <vector>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

/// A disk with one file, which stays there however often it is closed.
class FilesOfOne final : public AudioFiles {
public:
    class File final : public AudioFile {
    public:
        bool write(std::span<const float>) noexcept override { return true; }
        std::optional<AudioFileError> failure() const override { return std::nullopt; }
    };

    bool isTaken(const std::filesystem::path& /*location*/) const override { return false; }
    std::expected<AudioFile*, TapError> create(const std::filesystem::path&, double) override
    {
        return &file;
    }
    std::optional<AudioFileError> dispose(AudioFile&) override
    {
        ++timesClosed;
        return std::nullopt;
    }
    std::string describe(AudioFileError) const override { return ""; }

    File file;
    int timesClosed = 0;
};

class RecordingTest : public testing::Test {
protected:
    std::unique_ptr<Recording> record(double sampleRate = 44100)
    {
        auto recording = Recording::create(files, clocks, location, sampleRate, start);
        EXPECT_TRUE(recording);
        return std::move(*recording);
    }

    /// A cycle of 10 ms at 48 kHz whose samples all have this value.
    static void play(Recording& recording, HostTime host, float value)
    {
        const std::vector<float> samples(2 * 480, value);
        recording.lanes()->push(
            &recording, 48000, {.clock = 1, .frame = host / 1ms * 48, .host = host}, samples);
    }

    static constexpr Recording::Start start{.date = Recording::Moment{5s}, .host = 100s};
    const std::filesystem::path location = "/music/Player.wav";
    SimulatedAudioFiles files;
    CycleClocks clocks;
};

TEST_F(RecordingTest, isAFileAtItsRate)
{
    const auto recording = record(44100);

    EXPECT_EQ(recording->location(), location);
    EXPECT_EQ(recording->startedAt(), start.date);
    EXPECT_FALSE(recording->isFinished());
    EXPECT_EQ(files.at(location)->sampleRate, 44100);
}

TEST_F(RecordingTest, aFileThatCannotBeCreatedIsReported)
{
    files.refuseToCreate(TapError{"Create recording file", -43});

    const auto recording = Recording::create(files, clocks, location, 48000, start);

    ASSERT_FALSE(recording);
    EXPECT_EQ(recording.error().description(), "Create recording file failed (OSStatus -43)");
    EXPECT_EQ(files.openCount(), 0);
}

TEST_F(RecordingTest, replacesAFileOfTheSameName)
{
    const auto old = record(48000);
    play(*old, 100s, 0.5F);
    old->finish();
    ASSERT_EQ(files.at(location)->frameCount(), 480U);

    const auto recording = record(48000);
    recording->finish();

    EXPECT_THAT(files.at(location)->samples, IsEmpty());
}

TEST_F(RecordingTest, writesEverythingButTheLastMomentsWhileItRuns)
{
    const auto recording = record(48000);
    for (int i = 0; i < 100; ++i)
        play(*recording, 100s + i * 10ms, 0.5F);

    recording->writeUntil(101s);
    EXPECT_EQ(files.at(location)->frameCount(), 48U * 700);
    recording->stop(101s);
    recording->finish();

    EXPECT_EQ(files.at(location)->frameCount(), 48'000U);
    EXPECT_THAT(files.at(location)->samples, Each(0.5F));
}

TEST_F(RecordingTest, isSilentWhileNothingPlays)
{
    const auto recording = record(48000);
    recording->writeUntil(103s);

    EXPECT_EQ(files.at(location)->frameCount(), 48U * 2700);
    EXPECT_THAT(files.at(location)->samples, Each(0));
}

TEST_F(RecordingTest, waitsForADiskThatStalls)
{
    const auto recording = record(48000);
    play(*recording, 100s, 0.5F);
    files.setStalled(true);
    for (int second = 1; second <= 50; ++second)
        recording->writeUntil(100s + second * 1s);
    EXPECT_THAT(files.at(location)->samples, IsEmpty());

    files.setStalled(false);
    recording->stop(150s);
    recording->finish();

    EXPECT_EQ(files.at(location)->frameCount(), 48'000U * 50);
    EXPECT_EQ(files.at(location)->samples.front(), 0.5F);
    EXPECT_EQ(recording->lostTime(), 0s);
}

TEST_F(RecordingTest, knowsWhatItLostToADiskThatStallsForTooLong)
{
    const auto recording = record(48000);
    files.setStalled(true);
    for (int second = 1; second <= 70; ++second)
        recording->writeUntil(100s + second * 1s + 300ms);
    EXPECT_EQ(recording->lostTime(), 10s);

    recording->stop(171s);
    recording->finish();

    EXPECT_EQ(recording->lostTime(), 71s) << "all of it, since the disk stalls to the end";
}

TEST_F(RecordingTest, completesItsFile)
{
    const auto recording = record();

    recording->finish();

    EXPECT_TRUE(recording->isFinished());
    EXPECT_THAT(files.journal(), ElementsAre("create Player.wav", "dispose Player.wav"));
    EXPECT_TRUE(files.at(location)->isComplete);
}

TEST_F(RecordingTest, closesItsFileOnce)
{
    FilesOfOne own;
    const auto recording = Recording::create(own, clocks, location, 48000, start);
    ASSERT_TRUE(recording);

    (*recording)->finish();
    (*recording)->finish();

    EXPECT_EQ(own.timesClosed, 1);
}

TEST_F(RecordingTest, itsEndClosesNothing)
{
    record().reset();

    EXPECT_EQ(files.openCount(), 1);
}

TEST_F(RecordingTest, reportsItsFailureEvenAfterwards)
{
    const auto recording = record();
    EXPECT_EQ(recording->failure(), std::nullopt);
    files.failWriting({28});

    EXPECT_EQ(recording->failure(), AudioFileError{28});
    recording->finish();
    EXPECT_EQ(recording->failure(), AudioFileError{28});
}

}  // namespace
}  // namespace fadeloom
