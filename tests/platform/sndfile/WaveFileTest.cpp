// SPDX-License-Identifier: MIT
#include "platform/sndfile/WaveFile.h"

#include "tests/platform/sndfile/WaveReading.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <numeric>

namespace fadeloom {
namespace {

using std::string_literals::operator""s;

class WaveFileTest : public ::testing::Test {
protected:
    std::unique_ptr<WaveFile> create(std::uint64_t largestRiff = WaveFile::largestRiffFile) const
    {
        return *WaveFile::create(*DiskFile::create(location), 48000, largestRiff);
    }
    /// 0, 1, 2 ... steps, in the file's format.
    static std::vector<std::int32_t> counting(std::size_t frames)
    {
        std::vector<std::int32_t> samples(2 * frames);
        for (std::size_t i = 0; i < samples.size(); ++i)
            samples[i] = static_cast<std::int32_t>(i) << 8;
        return samples;
    }
    /// All readers agree that this is a file of `frames` frames, and libsndfile reads the samples of `counting`.
    void expectReadable(std::size_t frames) const
    {
        Steps expected(2 * frames);
        std::iota(expected.begin(), expected.end(), 0);
        EXPECT_EQ(readWave(location), WrittenSound(48000, expected));
        EXPECT_EQ(framesBySndfileInfo(location), frames);
        EXPECT_EQ(framesBySox(location), frames);
    }

    TemporaryFolder folder;
    const std::filesystem::path location = folder.path() / "sound.wav";
    // 48000 Hz, 288000 bytes per second, 6 bytes per frame, 24 bits.
    const std::string format = "fmt \x10\0\0\0\x01\0\x02\0\x80\xBB\0\0\0\x65\x04\0\x06\0\x18\0"s;
};

TEST_F(WaveFileTest, isPlainPCMWithSpaceReservedForLargeSizes)
{
    const auto room = "JUNK\x1C\0\0\0"s + std::string(28, '\0');
    const auto file = create();
    EXPECT_EQ(bytesOf(location), "RIFF\x48\0\0\0WAVE"s + format + room + "data\0\0\0\0"s);

    EXPECT_EQ(file->append(counting(2)), 0);
    EXPECT_EQ(bytesOf(location),
        "RIFF\x54\0\0\0WAVE"s + format + room + "data\x0C\0\0\0"s + "\0\0\0\x01\0\0\x02\0\0\x03\0\0"s);
}

TEST_F(WaveFileTest, canBeOpenedAtAnyTime)
{
    const auto file = create();
    expectReadable(0);

    file->append(counting(1000));
    expectReadable(1000);

    EXPECT_EQ(file->close(), 0);
    expectReadable(1000);
}

TEST_F(WaveFileTest, becomesRF64WhenItOutgrowsRIFF)
{
    const auto file = create(80 + 6 * 1000);
    const auto samples = counting(1001);

    file->append(std::span{samples}.first(2000));
    EXPECT_EQ(bytesOf(location).substr(0, 4), "RIFF");
    expectReadable(1000);

    file->append(std::span{samples}.last(2));
    EXPECT_EQ(bytesOf(location).substr(0, 80),
        "RF64\xFF\xFF\xFF\xFFWAVE"
            + "ds64\x1C\0\0\0\xBE\x17\0\0\0\0\0\0\x76\x17\0\0\0\0\0\0\xE9\x03\0\0\0\0\0\0\0\0\0\0"s + format
            + "data\xFF\xFF\xFF\xFF");
    expectReadable(1001);

    EXPECT_EQ(file->close(), 0);
    EXPECT_EQ(bytesOf(location).substr(0, 4), "RF64");
    expectReadable(1001);
}

}  // namespace
}  // namespace fadeloom
