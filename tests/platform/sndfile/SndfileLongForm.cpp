// SPDX-License-Identifier: MIT
// Files beyond the 4 GiB of RIFF: minutes of writing and gigabytes of disk, so only with --long.
#include "tests/platform/sndfile/SndfileStage.h"

namespace fadeloom {
namespace {

namespace fs = std::filesystem;

using SndfileLongForm = SndfileTest;

TEST_F(SndfileLongForm, aFileBeyond4GiBIsReadToItsEnd)
{
    constexpr std::uint64_t cycle = 8192;
    constexpr std::uint64_t cycles = (std::uint64_t{1} << 32) / (6 * cycle) + 2000;
    constexpr std::uint64_t frames = cycles * cycle;
    constexpr std::uint64_t boundary = (std::uint64_t{1} << 32) / 6;
    if (fs::space(folder.path()).available < frames * 6 * 11 / 10)
        GTEST_SKIP() << "takes 5 GB of disk in " << folder.path();
    AudioFile& file = *open(location);

    for (std::uint64_t i = 0; i < cycles; ++i) {
        const auto sound = samples(i * cycle, cycle);
        ASSERT_TRUE(waitUntil([&] { return file.write(sound); })) << i;
    }
    ASSERT_EQ(files.dispose(file), std::nullopt);

    EXPECT_EQ(fs::file_size(location), 80 + 6 * frames);
    EXPECT_EQ(framesBySndfileInfo(location), frames);
    EXPECT_EQ(framesBySox(location), frames);
    for (const std::uint64_t first : {std::uint64_t{0}, boundary - 10'000, frames - 20'000})
        EXPECT_TRUE(readWave(location, static_cast<sf_count_t>(first), 20'000)
            == WrittenSound(rate, steps(first, 20'000)))
            << first;
}

}  // namespace
}  // namespace fadeloom
