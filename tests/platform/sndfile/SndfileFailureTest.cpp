// SPDX-License-Identifier: MIT
// What is left if the program is killed, or the disk fails.
#include "tests/platform/sndfile/ChildProcess.h"
#include "tests/platform/sndfile/SndfileStage.h"

#include <csignal>

namespace fadeloom {
namespace {

namespace fs = std::filesystem;

class SndfileFailureTest : public SndfileTest {
protected:
    /// Writes audio until the file fails, which must be with the error `expected`.
    void writeUntil(int expected)
    {
        AudioFile& file = *open(location);
        std::uint64_t frame = 0;
        ASSERT_TRUE(waitUntil([&] {
            if (file.write(samples(frame, 480)))
                frame += 480;
            return file.failure().has_value();
        }));

        EXPECT_EQ(file.failure(), AudioFileError{expected});
        EXPECT_TRUE(file.write(samples(frame, 1))) << "dropped";
        expectWholeFrames();  // Also while the file is still open.
        EXPECT_EQ(files.dispose(file), AudioFileError{expected});
    }
    /// All readers agree on the file's length, and its audio is what was written.
    void expectWholeFrames()
    {
        const std::uint64_t frames = (fs::file_size(location) - 80) / 6;
        EXPECT_EQ(fs::file_size(location), 80 + 6 * frames);
        EXPECT_TRUE(readWave(location) == WrittenSound(rate, steps(0, frames)));
        EXPECT_EQ(framesBySndfileInfo(location), frames);
        EXPECT_EQ(framesBySox(location), frames);
    }
};

TEST_F(SndfileFailureTest, aKilledProgramLeavesAllButTheLastSecond)
{
    const auto end = endOfChild([&] {
        AudioFile& file = *open(location);
        EXPECT_TRUE(file.write(samples(0, 2 * rate)));
        std::this_thread::sleep_for(std::chrono::seconds{1});
        EXPECT_TRUE(file.write(samples(2 * rate, rate)));
        return std::raise(SIGKILL);
    });

    EXPECT_EQ(end, -SIGKILL);
    const auto sound = readWave(location);
    ASSERT_TRUE(sound);
    const std::size_t frames = sound->steps.size() / 2;
    EXPECT_GE(frames, 2U * rate);
    EXPECT_TRUE(*sound == WrittenSound(rate, steps(0, frames)));
    EXPECT_EQ(framesBySndfileInfo(location), frames);
    EXPECT_EQ(framesBySox(location), frames);
}

TEST_F(SndfileFailureTest, aProgramKilledAtOnceLeavesAFileWithoutSamples)
{
    const auto end = endOfChild([&] {
        open(location);
        return std::raise(SIGKILL);
    });

    EXPECT_EQ(end, -SIGKILL);
    EXPECT_EQ(readWave(location), WrittenSound(rate, {}));
    EXPECT_EQ(framesBySndfileInfo(location), 0);
    EXPECT_EQ(framesBySox(location), 0);
}

TEST_F(SndfileFailureTest, atTheLimitOfFileSizesTheFileKeepsWhatFits)
{
    const auto end = endOfChild([&] {
        limitFileSizes(100'000);
        writeUntil(EFBIG);
        return 0;
    });

    EXPECT_EQ(end, 0);
    expectWholeFrames();
    EXPECT_EQ(fs::file_size(location), 80 + 6 * ((100'000U - 80) / 6));
}

TEST_F(SndfileFailureTest, noFileIsCreatedIfNothingMayBeWritten)
{
    const auto end = endOfChild([&] {
        limitFileSizes(0);
        EXPECT_EQ(files.create(location, rate), std::unexpected(TapError{"Create recording file", EFBIG}));
        return 0;
    });

    EXPECT_EQ(end, 0);
    EXPECT_FALSE(fs::exists(location));
}

TEST_F(SndfileFailureTest, onAFullDiskTheFileKeepsWhatFits)
{
    constexpr std::size_t diskSize = 1 << 20;
    const auto refused = endOfChild([&] {
        if (const int reason = mountSmallDisk(folder.path(), diskSize))
            return reason;

        writeUntil(ENOSPC);

        expectWholeFrames();
        EXPECT_GT(fs::file_size(location), diskSize - 10'000);  // Minus the file system's overhead.
        EXPECT_EQ(files.create(folder.path() / "other.wav", rate),
            std::unexpected(TapError{"Create recording file", ENOSPC}));
        EXPECT_FALSE(fs::exists(folder.path() / "other.wav"));
        return 0;
    });

    ASSERT_NE(refused, childFailed);
    if (refused != 0)
        GTEST_SKIP() << "no disk can be mounted here: " << files.describe({refused});
}

}  // namespace
}  // namespace fadeloom
