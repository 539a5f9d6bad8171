// SPDX-License-Identifier: MIT
// Creating and closing files.
#include "tests/platform/sndfile/SndfileStage.h"

#include <cerrno>

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
    EXPECT_TRUE(file.write(samples(0, 5000)));
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
    EXPECT_TRUE(file.write(samples(0, 100)));
    files.dispose(file);

    EXPECT_EQ(readWave(strange), WrittenSound(rate, steps(0, 100)));
}

TEST_F(SndfileAudioFilesTest, aRefusalHasTheSystemsCodeAndMessage)
{
    std::ofstream{folder.path() / "document"};

    const auto file = files.create(folder.path() / "document" / "sound.wav", rate);

    ASSERT_FALSE(file);
    EXPECT_EQ(file.error(), (TapError{"Create recording file", ENOTDIR}));
    EXPECT_EQ(files.describe({ENOTDIR}), "Not a directory");
}

TEST_F(SndfileAudioFilesTest, aRefusedRateTouchesNothing)
{
    std::ofstream{location} << "old";
    const std::size_t before = openDescriptors();

    for (const double wrong : {0.5, 44100.5, 768001.0, 1e300, std::nan(""), -48000.0})
        EXPECT_EQ(files.create(location, wrong), std::unexpected(TapError{"Create recording file", EINVAL}))
            << wrong;

    EXPECT_EQ(openDescriptors(), before);
    EXPECT_EQ(bytesOf(location), "old");
}

TEST_F(SndfileAudioFilesTest, lowestAndHighestRateAreWrittenDown)
{
    for (const double possible : {1.0, 768'000.0}) {
        const auto file = files.create(location, possible);
        ASSERT_TRUE(file);
        EXPECT_TRUE((*file)->write(samples(0, 3)));
        EXPECT_EQ(files.dispose(**file), std::nullopt);

        EXPECT_EQ(readWave(location), WrittenSound(possible, steps(0, 3)));
    }
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
        const auto file = ending.create(location, rate);
        ASSERT_TRUE(file);
        EXPECT_TRUE((*file)->write(samples(0, 100'000)));
    }

    EXPECT_TRUE(readWave(location) == WrittenSound(rate, steps(0, 100'000)));
}

}  // namespace
}  // namespace fadeloom
