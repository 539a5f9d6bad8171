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

TEST_F(RecordingTest, isWrittenIn24BitStereoAtItsRate)
{
    const auto recording = record(44100);

    EXPECT_EQ(recording->location(), location);
    EXPECT_EQ(recording->startedAt(), start.date);
    EXPECT_FALSE(recording->isFinished());
    const auto& format = files.at(location)->format;
    EXPECT_EQ(format.sampleRate, 44100);
    EXPECT_EQ(format.formatID, kAudioFormatLinearPCM);
    EXPECT_EQ(format.formatFlags, 12);  // Signed integers, packed.
    EXPECT_EQ(format.channelsPerFrame, 2);
    EXPECT_EQ(format.bitsPerChannel, 24);
    EXPECT_EQ(format.bytesPerFrame, 6);
    EXPECT_EQ(format.bytesPerPacket, 6);
    EXPECT_EQ(format.framesPerPacket, 1);
}

TEST_F(RecordingTest, isPrimed)
{
    const auto recording = record();

    EXPECT_THAT(files.journal(), ElementsAre("create Player.wav", "format Player.wav", "prime Player.wav"));
}

TEST_F(RecordingTest, takesFloatsInTheFormOfTheTap)
{
    // A file that keeps the client format; everything else is of no interest here.
    class File final : public AudioFile {
    public:
        AudioStatus setClientFormat(const AudioStreamBasicDescription& wanted) override
        {
            format = wanted;
            return kAudioHardwareNoError;
        }
        AudioStatus write(std::uint32_t, const float*) noexcept override { return kAudioHardwareNoError; }
        AudioStatus status() const override { return kAudioHardwareNoError; }
        AudioStreamBasicDescription format;
    };
    class Files final : public AudioFiles {
    public:
        bool isTaken(const std::filesystem::path& /*location*/) const override { return false; }
        AudioResult<AudioFile*> create(
            const std::filesystem::path&, const AudioStreamBasicDescription&) override
        {
            return &file;
        }
        AudioStatus dispose(AudioFile&) override { return kAudioHardwareNoError; }
        std::string describe(AudioStatus) const override { return ""; }
        File file;
    } own;

    ASSERT_TRUE(Recording::create(own, clocks, location, 96000, start));

    EXPECT_EQ(own.file.format.sampleRate, 96000);
    EXPECT_EQ(own.file.format.formatID, kAudioFormatLinearPCM);
    EXPECT_EQ(own.file.format.formatFlags, 9);  // Floats, packed.
    EXPECT_EQ(own.file.format.channelsPerFrame, 2);
    EXPECT_EQ(own.file.format.bitsPerChannel, 32);
    EXPECT_EQ(own.file.format.bytesPerFrame, 8);
    EXPECT_EQ(own.file.format.bytesPerPacket, 8);
}

TEST_F(RecordingTest, aFileThatCannotBeCreatedIsReported)
{
    files.refuseToCreate(-43);

    const auto recording = Recording::create(files, clocks, location, 48000, start);

    ASSERT_FALSE(recording);
    EXPECT_EQ(recording.error().description(), "Create recording file failed (OSStatus -43)");
    EXPECT_EQ(files.openCount(), 0);
}

TEST_F(RecordingTest, aRefusedFormatLeavesNoOpenFile)
{
    files.refuseClientFormat(-50);

    const auto recording = Recording::create(files, clocks, location, 48000, start);

    ASSERT_FALSE(recording);
    EXPECT_EQ(recording.error(), (TapError{"Set recording format", -50}));
    EXPECT_EQ(files.openCount(), 0);
    EXPECT_THAT(files.journal(), ElementsAre("create Player.wav", "format Player.wav", "dispose Player.wav"));
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

TEST_F(RecordingTest, writesWhileItGoesOnAllButTheLastMoments)
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

TEST_F(RecordingTest, closesItsFileOnce)
{
    const auto recording = record();

    recording->finish();
    recording->finish();

    EXPECT_TRUE(recording->isFinished());
    EXPECT_EQ(files.journal().back(), "dispose Player.wav");
    EXPECT_EQ(files.journal().size(), 4);
    EXPECT_TRUE(files.at(location)->isComplete);
}

TEST_F(RecordingTest, itsEndClosesNothing)
{
    record().reset();

    EXPECT_EQ(files.openCount(), 1);
}

TEST_F(RecordingTest, knowsHowTheWritingWentAlsoAfterwards)
{
    const auto recording = record();
    EXPECT_EQ(recording->status(), kAudioHardwareNoError);
    files.failWriting(28);

    EXPECT_EQ(recording->status(), 28);
    recording->finish();
    EXPECT_EQ(recording->status(), 28);
}

}  // namespace
}  // namespace fadeloom
