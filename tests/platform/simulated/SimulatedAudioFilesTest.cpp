// SPDX-License-Identifier: MIT
// The contract of audio files for those in memory, and fault injection.
#include "platform/simulated/SimulatedAudioFiles.h"

#include "tests/platform/AudioFilesContract.h"

#include <array>
#include <cmath>

namespace fadeloom {
namespace {

// A sample rounded to 24 bits.
std::int32_t stepOf(float sample)
{
    if (std::isnan(sample))
        return 0;
    return static_cast<std::int32_t>(
        std::clamp(std::nearbyint(double{sample} * 0x1p23), -0x1p23, 0x1p23 - 1));
}

class SimulatedFilesWorld final : public ContractFilesWorld {
public:
    AudioFiles& files() override { return files_; }
    std::filesystem::path folder() override { return "/music"; }
    std::optional<WrittenSound> read(const std::filesystem::path& location) override
    {
        const auto* const content = files_.at(location);
        if (!content || !content->isComplete)
            return std::nullopt;
        WrittenSound sound{.sampleRate = content->sampleRate, .steps = {}};
        std::ranges::transform(content->samples, std::back_inserter(sound.steps), stepOf);
        return sound;
    }

private:
    SimulatedAudioFiles files_;
};

std::unique_ptr<ContractFilesWorld> makeSimulatedFilesWorld()
{
    return std::make_unique<SimulatedFilesWorld>();
}

class SimulatedAudioFilesTest : public testing::Test {
protected:
    AudioFile& open() { return **files.create(location, 48000); }

    const std::filesystem::path location = "/music/a.wav";
    static constexpr std::array<float, 2> frame{0.5F, -0.5F};
    SimulatedAudioFiles files;
};

TEST_F(SimulatedAudioFilesTest, failsOnDemand)
{
    const TapError refusal{"Create recording file", 28};
    files.refuseToCreate(refusal);
    EXPECT_EQ(files.create(location, 48000), std::unexpected(refusal));
    EXPECT_EQ(files.at(location), nullptr);

    files.refuseToCreate(std::nullopt);
    EXPECT_TRUE(files.create(location, 48000));
}

TEST_F(SimulatedAudioFilesTest, aFailedFileStoresNothingMore)
{
    auto& file = open();
    EXPECT_TRUE(file.write(frame));

    files.failWriting({28});
    EXPECT_TRUE(file.write(frame));

    EXPECT_EQ(file.failure(), AudioFileError{28});
    EXPECT_EQ(files.at(location)->frameCount(), 1);
    EXPECT_EQ(files.dispose(file), AudioFileError{28});
}

TEST_F(SimulatedAudioFilesTest, aStalledFileAcceptsNoSamples)
{
    auto& file = open();
    files.setStalled(true);
    EXPECT_FALSE(file.write(frame));
    files.setStalled(false);
    EXPECT_TRUE(file.write(frame));

    EXPECT_EQ(files.at(location)->frameCount(), 1);
}

TEST_F(SimulatedAudioFilesTest, isIncompleteUntilItIsDisposedOf)
{
    auto& file = open();
    EXPECT_FALSE(files.at(location)->isComplete);
    EXPECT_EQ(files.openCount(), 1);

    EXPECT_EQ(files.dispose(file), std::nullopt);

    EXPECT_TRUE(files.at(location)->isComplete);
    EXPECT_EQ(files.openCount(), 0);
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Simulated, AudioFilesContract, ::testing::Values(&makeSimulatedFilesWorld));

}  // namespace fadeloom
