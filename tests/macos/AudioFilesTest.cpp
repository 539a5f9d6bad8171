// SPDX-License-Identifier: MIT
// The contract of audio files for those of macOS, and the order of a recording's calls.
#include "engine/Recording.h"
#include "platform/macos/ExtendedAudioFiles.h"
#include "platform/macos/WaveFormats.h"
#include "tests/macos/doubles/AudioFileDouble.h"
#include "tests/macos/doubles/Journal.h"
#include "tests/platform/AudioFilesContract.h"
#include "tests/platform/sndfile/WaveReading.h"
#include "tests/support/TemporaryFolder.h"

#include <AudioToolbox/AudioToolbox.h>

#include <array>

namespace fadeloom {
namespace {

using doubles::failNextFileCall;
using doubles::journal;
using doubles::openAudioFiles;
using ::testing::ElementsAre;

class MacOSFilesWorld final : public ContractFilesWorld {
public:
    AudioFiles& files() override { return files_; }
    std::filesystem::path folder() override { return folder_.path(); }
    std::optional<WrittenSound> read(const std::filesystem::path& location) override
    {
        return readWave(location);
    }

private:
    TemporaryFolder folder_;
    ExtendedAudioFiles files_;
};

std::unique_ptr<ContractFilesWorld> makeMacOSFilesWorld()
{
    return std::make_unique<MacOSFilesWorld>();
}

class MacOSRecording : public ::testing::Test {
protected:
    auto record(double rate = 44100) { return Recording::create(files, clocks, file, rate, {}); }

    static constexpr auto created = "ExtAudioFileCreateWithURL type 1463899717 flags 1";  // 'WAVE', erase.
    static constexpr auto formatted = "ExtAudioFileSetProperty 40";
    static constexpr auto primed = "ExtAudioFileWriteAsync nothing";
    static constexpr auto disposed = "ExtAudioFileDispose";

    TemporaryFolder folder;
    std::filesystem::path file = folder.path() / "recording.wav";
    ExtendedAudioFiles files;
    CycleClocks clocks;
};

}  // namespace

INSTANTIATE_TEST_SUITE_P(MacOS, AudioFilesContract, ::testing::Values(&makeMacOSFilesWorld));

TEST_F(MacOSRecording, isCreatedFormattedAndPrimedInThisOrderAndClosedOnce)
{
    const auto recording = record();
    ASSERT_TRUE(recording);
    const std::array samples{0.5F, -0.5F};
    (*recording)->lanes()->push(this, 44100, {}, samples);

    (*recording)->finish();
    (*recording)->finish();

    EXPECT_THAT(
        journal(), ElementsAre(created, formatted, primed, "ExtAudioFileWriteAsync 1 frames", disposed));
    EXPECT_EQ(readWave(file), WrittenSound(44100, {1 << 22, -(1 << 22)}));
}

TEST_F(MacOSRecording, thatCannotBeCreatedLeavesNoHandle)
{
    failNextFileCall("ExtAudioFileCreateWithURL", {-54});

    const auto recording = record();

    ASSERT_FALSE(recording);
    EXPECT_EQ(recording.error(), (TapError{"Create recording file", -54}));
    EXPECT_EQ(openAudioFiles(), 0U);
    EXPECT_THAT(journal(), ElementsAre(created));
}

TEST_F(MacOSRecording, inAFolderThatIsNotThereCannotBeCreated)
{
    file = folder.path() / "nowhere" / "recording.wav";

    const auto recording = record();

    ASSERT_FALSE(recording);
    EXPECT_EQ(recording.error(), (TapError{"Create recording file", -43}));
}

TEST_F(MacOSRecording, whoseFormatIsRefusedIsClosed)
{
    failNextFileCall("ExtAudioFileSetProperty", {-66566});

    const auto recording = record();

    ASSERT_FALSE(recording);
    EXPECT_EQ(recording.error(), (TapError{"Set recording format", -66566}));
    EXPECT_EQ(openAudioFiles(), 0U);
    EXPECT_THAT(journal(), ElementsAre(created, formatted, disposed));
}

TEST_F(MacOSRecording, retriesWhenFullAndKeepsTheFirstFailure)
{
    const auto recording = record();
    ASSERT_TRUE(recording);
    const std::array samples{0.5F, -0.5F};
    (*recording)->lanes()->push(this, 44100, {}, samples);
    failNextFileCall("ExtAudioFileWriteAsync", {-66570, -66570, -34, -36});
    for (int i = 1; i <= 4; ++i)
        (*recording)->writeUntil(HostTime(std::chrono::seconds(i)));

    EXPECT_EQ((*recording)->failure(), AudioFileError{-34});
    (*recording)->finish();
}

TEST_F(MacOSRecording, thatWasNotFinishedIsClosedWithItsFiles)
{
    {
        ExtendedAudioFiles others;
        ASSERT_TRUE(others.create(file, 48000));
        EXPECT_EQ(openAudioFiles(), 1U);
    }

    EXPECT_EQ(openAudioFiles(), 0U);
}

TEST_F(MacOSRecording, thatCannotBePrimedHasFailed)
{
    failNextFileCall("ExtAudioFileWriteAsync", {-36});

    const auto recording = record();

    ASSERT_TRUE(recording);
    EXPECT_EQ((*recording)->failure(), AudioFileError{-36});
    (*recording)->finish();
}

TEST_F(MacOSRecording, whoseFileCannotBeCompletedHasFailed)
{
    failNextFileCall("ExtAudioFileDispose", {-34});
    const auto recording = record();
    ASSERT_TRUE(recording);
    EXPECT_EQ((*recording)->failure(), std::nullopt);

    (*recording)->finish();

    EXPECT_EQ((*recording)->failure(), AudioFileError{-34});
}

TEST_F(MacOSRecording, describesErrorsWithTheirFourCharacterCode)
{
    EXPECT_EQ(files.describe({-50}), "OSStatus -50");
    EXPECT_EQ(files.describe({kAudioFileUnsupportedDataFormatError}), "OSStatus 1718449215 ('fmt?')");
}

TEST(MacOSWaveFormats, onTheDiskAre24BitIntegersInStereo)
{
    constexpr auto format = waveFileFormat(44100);

    EXPECT_EQ(format.mSampleRate, 44100);
    EXPECT_EQ(format.mFormatID, UInt32{kAudioFormatLinearPCM});
    EXPECT_EQ(format.mFormatFlags, 12U);  // Signed integers, packed.
    EXPECT_EQ(format.mChannelsPerFrame, 2U);
    EXPECT_EQ(format.mBitsPerChannel, 24U);
    EXPECT_EQ(format.mBytesPerFrame, 6U);
    EXPECT_EQ(format.mBytesPerPacket, 6U);
    EXPECT_EQ(format.mFramesPerPacket, 1U);
}

TEST(MacOSWaveFormats, areHandedOverAsFloatsInStereo)
{
    constexpr auto format = waveClientFormat(96000);

    EXPECT_EQ(format.mSampleRate, 96000);
    EXPECT_EQ(format.mFormatID, UInt32{kAudioFormatLinearPCM});
    EXPECT_EQ(format.mFormatFlags, 9U);  // Floats, packed.
    EXPECT_EQ(format.mChannelsPerFrame, 2U);
    EXPECT_EQ(format.mBitsPerChannel, 32U);
    EXPECT_EQ(format.mBytesPerFrame, 8U);
    EXPECT_EQ(format.mBytesPerPacket, 8U);
    EXPECT_EQ(format.mFramesPerPacket, 1U);
}

}  // namespace fadeloom
