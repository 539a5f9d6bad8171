// SPDX-License-Identifier: MIT
#include "engine/Recording.h"

#include "platform/simulated/SimulatedAudioFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <chrono>

namespace fadeloom {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RecordingTest : public testing::Test {
protected:
    std::unique_ptr<Recording> record(double sampleRate = 44100)
    {
        auto recording = Recording::create(files, location, sampleRate, start);
        EXPECT_TRUE(recording);
        return std::move(*recording);
    }

    static constexpr Recording::Moment start{std::chrono::seconds{5}};
    const std::filesystem::path location = "/music/Player.wav";
    SimulatedAudioFiles files;
};

TEST_F(RecordingTest, isWrittenIn24BitStereoAtItsRate)
{
    const auto recording = record(44100);

    EXPECT_EQ(recording->location(), location);
    EXPECT_EQ(recording->startedAt(), start);
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

TEST_F(RecordingTest, isPrimedBeforeAnyRendererHasIt)
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
        AudioFileHealth health() const override { return {}; }
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

    ASSERT_TRUE(Recording::create(own, location, 96000, start));

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

    const auto recording = Recording::create(files, location, 48000, start);

    ASSERT_FALSE(recording);
    EXPECT_EQ(recording.error().description(), "Create recording file failed (OSStatus -43)");
    EXPECT_EQ(files.openCount(), 0);
}

TEST_F(RecordingTest, aRefusedFormatLeavesNoOpenFile)
{
    files.refuseClientFormat(-50);

    const auto recording = Recording::create(files, location, 48000, start);

    ASSERT_FALSE(recording);
    EXPECT_EQ(recording.error(), (TapError{"Set recording format", -50}));
    EXPECT_EQ(files.openCount(), 0);
    EXPECT_THAT(files.journal(), ElementsAre("create Player.wav", "format Player.wav", "dispose Player.wav"));
}

TEST_F(RecordingTest, replacesAFileOfTheSameName)
{
    constexpr std::array<float, 2> frame{0.5F, 0.5F};
    const auto old = record();
    old->file().write(1, frame.data());
    old->finish();

    const auto recording = record();
    recording->finish();

    EXPECT_THAT(files.at(location)->samples, IsEmpty());
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
    constexpr std::array<float, 2> frame{0.5F, 0.5F};
    const auto recording = record();
    files.setStalled(true);
    recording->file().write(1, frame.data());
    files.failWriting(28);

    EXPECT_EQ(recording->health(), (AudioFileHealth{.status = 28, .droppedWrites = 1}));
    recording->finish();
    EXPECT_EQ(recording->health(), (AudioFileHealth{.status = 28, .droppedWrites = 1}));
}

}  // namespace
}  // namespace fadeloom
