// SPDX-License-Identifier: MIT
// Making files and closing them.
#include "tests/platform/sndfile/SndfileStage.h"

#include <cstring>

namespace fadeloom {
namespace {

namespace fs = std::filesystem;

using SndfileAudioFilesTest = SndfileTest;

std::size_t openDescriptors()
{
    const fs::directory_iterator all{"/proc/self/fd"};
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

TEST_F(SndfileAudioFilesTest, otherProgramsOpenTheFile)
{
    AudioFile& file = *open(location);
    hand(file, samples(0, 5000));
    files.dispose(file);

    EXPECT_EQ(framesBySndfileInfo(location), 5000);
    EXPECT_EQ(framesBySox(location), 5000);
}

TEST_F(SndfileAudioFilesTest, otherProgramsOpenAFileWithoutSamples)
{
    files.dispose(*open(location));

    EXPECT_EQ(framesBySndfileInfo(location), 0);
    EXPECT_EQ(framesBySox(location), 0);
    EXPECT_EQ(fs::file_size(location), 80U);
}

TEST_F(SndfileAudioFilesTest, aNameMayBeAnyBytes)
{
    const fs::path strange = folder.path() / "\xFF\xFE caf\xE9\n'\"* \x01.wav";

    AudioFile& file = *open(strange);
    hand(file, samples(0, 100));
    files.dispose(file);

    EXPECT_EQ(readWave(strange), WrittenSound(rate, steps(0, 100)));
}

TEST_F(SndfileAudioFilesTest, aRefusalIsInTheSystemsWords)
{
    std::ofstream{folder.path() / "document"};

    const auto file = files.create(folder.path() / "document" / "sound.wav", waveFileFormat(rate));

    ASSERT_FALSE(file);
    EXPECT_EQ(file.error(), ENOTDIR);
    EXPECT_EQ(files.describe(file.error()), std::strerror(ENOTDIR));
}

TEST_F(SndfileAudioFilesTest, aRefusedFormatTouchesNothing)
{
    std::ofstream{location} << "old";
    const std::size_t before = openDescriptors();

    for (const double wrong : {0.5, 44100.5, 768001.0, 1e300, std::nan(""), -48000.0})
        EXPECT_EQ(files.create(location, waveFileFormat(wrong)),
            std::unexpected(kAudioFileUnsupportedDataFormatError))
            << wrong;

    EXPECT_EQ(openDescriptors(), before);
    EXPECT_EQ(bytesOf(location), "old");
}

TEST_F(SndfileAudioFilesTest, lowestAndHighestRateAreWrittenDown)
{
    for (const double possible : {1.0, 768'000.0}) {
        const auto file = files.create(location, waveFileFormat(possible));
        ASSERT_TRUE(file);
        EXPECT_EQ((*file)->setClientFormat(waveClientFormat(possible)), kAudioHardwareNoError);
        EXPECT_EQ(hand(**file, samples(0, 3)), kAudioHardwareNoError);
        EXPECT_EQ(files.dispose(**file), kAudioHardwareNoError);

        EXPECT_EQ(readWave(location), WrittenSound(possible, steps(0, 3)));
    }
}

TEST_F(SndfileAudioFilesTest, samplesAreTakenOnceTheirFormatIsKnown)
{
    AudioFile& file = **files.create(location, waveFileFormat(rate));
    EXPECT_EQ(file.setClientFormat(waveClientFormat(44100)), kExtAudioFileError_InvalidDataFormat);
    EXPECT_EQ(hand(file, samples(0, 10)), kExtAudioFileError_InvalidOperationOrder);

    EXPECT_EQ(file.setClientFormat(waveClientFormat(rate)), kAudioHardwareNoError);
    EXPECT_EQ(hand(file, samples(10, 10)), kAudioHardwareNoError);
    EXPECT_EQ(files.dispose(file), kAudioHardwareNoError);

    EXPECT_EQ(readWave(location), WrittenSound(rate, steps(10, 10)));
}

TEST_F(SndfileAudioFilesTest, aClosedFileLeavesNoDescriptor)
{
    const std::size_t before = openDescriptors();

    files.dispose(*open(location));

    EXPECT_EQ(openDescriptors(), before);
}

TEST_F(SndfileAudioFilesTest, whatIsStillOpenIsClosedAtTheEnd)
{
    {
        SndfileAudioFiles ending;
        const auto file = ending.create(location, waveFileFormat(rate));
        ASSERT_TRUE(file);
        EXPECT_EQ((*file)->setClientFormat(waveClientFormat(rate)), kAudioHardwareNoError);
        EXPECT_EQ(hand(**file, samples(0, 100'000)), kAudioHardwareNoError);
    }

    EXPECT_TRUE(readWave(location) == WrittenSound(rate, steps(0, 100'000)));
}

TEST_F(SndfileAudioFilesTest, everyStatusOfOurOwnHasWords)
{
    for (const AudioStatus status :
        {kAudioFileUnsupportedDataFormatError, kExtAudioFileError_InvalidDataFormat,
            kExtAudioFileError_InvalidOperationOrder, kExtAudioFileError_AsyncWriteBufferOverflow})
        EXPECT_THAT(files.describe(status), ::testing::Not(::testing::HasSubstr("nknown")));
    EXPECT_EQ(files.describe(ENOSPC), "No space left on device");
}

}  // namespace
}  // namespace fadeloom
