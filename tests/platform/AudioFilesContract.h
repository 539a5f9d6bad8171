// SPDX-License-Identifier: MIT
// The contract of audio files, as tests over an implementation.
//
//      INSTANTIATE_TEST_SUITE_P(Sndfile, AudioFilesContract, ::testing::Values(&makeSndfileFilesWorld));
#pragma once

#include "platform/AudioFiles.h"
#include "tests/platform/WrittenSound.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace fadeloom {

/// Audio files, with access to their contents.
class ContractFilesWorld {
public:
    virtual ~ContractFilesWorld() = default;
    virtual AudioFiles& files() = 0;
    /// A folder in which files can be created.
    virtual std::filesystem::path folder() = 0;
    /// The contents of a closed file; nullopt if there is none.
    [[nodiscard]] virtual std::optional<WrittenSound> read(const std::filesystem::path& location) = 0;
};

using ContractFilesWorldFactory = std::unique_ptr<ContractFilesWorld> (*)();

class AudioFilesContract : public ::testing::TestWithParam<ContractFilesWorldFactory> {
protected:
    std::filesystem::path at(const std::string& name) { return world->folder() / name; }
    AudioFile& open(const std::filesystem::path& location, double sampleRate)
    {
        const auto file = files.create(location, sampleRate);
        if (!file)
            throw std::runtime_error(file.error().description() + ": " + location.string());
        return **file;
    }
    /// Writes samples as a device does, in cycles of an odd size.
    static void write(AudioFile& file, const std::vector<float>& samples, std::size_t cycle = 479)
    {
        for (std::size_t begin = 0; begin < samples.size(); begin += 2 * cycle) {
            const auto frames = std::min(cycle, (samples.size() - begin) / 2);
            ASSERT_TRUE(file.write(std::span(samples).subspan(begin, 2 * frames)));
        }
    }

    std::unique_ptr<ContractFilesWorld> world = GetParam()();
    AudioFiles& files = world->files();
};

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(AudioFilesContract);

TEST_P(AudioFilesContract, whatIsWrittenIsInTheFile)
{
    for (const double rate : {8000, 44100, 48000, 96000, 192000}) {
        const Steps steps = noise(static_cast<std::size_t>(rate * 1.3), 1);
        AudioFile& file = open(at("noise.wav"), rate);

        write(file, samplesOf(steps));
        EXPECT_EQ(files.dispose(file), std::nullopt);

        EXPECT_TRUE(world->read(at("noise.wav")) == WrittenSound(rate, steps)) << rate;
    }
}

TEST_P(AudioFilesContract, cyclesMayHaveAnySize)
{
    const Steps steps = noise(20000, 2);
    for (const std::size_t cycle : {1U, 64U, 1023U, 8192U, 20000U}) {
        AudioFile& file = open(at("cycles.wav"), 48000);

        write(file, samplesOf(steps), cycle);
        files.dispose(file);

        EXPECT_TRUE(world->read(at("cycles.wav")) == WrittenSound(48000, steps)) << cycle;
    }
}

TEST_P(AudioFilesContract, whatIsBeyondFullScaleIsClipped)
{
    AudioFile& file = open(at("loud.wav"), 48000);

    write(file, {1, -1, 1.5F, -1.5F, 1e30F, -1e30F, 0.5F, -0.5F});
    files.dispose(file);

    constexpr std::int32_t highest = (1 << 23) - 1;
    constexpr std::int32_t lowest = -(1 << 23);
    EXPECT_EQ(world->read(at("loud.wav")),
        WrittenSound(48000, {highest, lowest, highest, lowest, highest, lowest, 1 << 22, -(1 << 22)}));
}

TEST_P(AudioFilesContract, nanIsSilence)
{
    AudioFile& file = open(at("nan.wav"), 48000);
    const float none = std::numeric_limits<float>::quiet_NaN();

    write(file, {none, 0.5F, -none, -0.5F});
    files.dispose(file);

    EXPECT_EQ(world->read(at("nan.wav")), WrittenSound(48000, {0, 1 << 22, 0, -(1 << 22)}));
}

TEST_P(AudioFilesContract, aFileWithoutSamplesIsComplete)
{
    AudioFile& file = open(at("empty.wav"), 44100);

    EXPECT_EQ(files.dispose(file), std::nullopt);

    EXPECT_EQ(world->read(at("empty.wav")), WrittenSound(44100, {}));
}

TEST_P(AudioFilesContract, aWriteWithoutSamplesAddsNothing)
{
    AudioFile& file = open(at("nothing.wav"), 48000);

    EXPECT_TRUE(file.write({}));
    write(file, {0.5F, -0.5F});
    files.dispose(file);

    EXPECT_EQ(world->read(at("nothing.wav")), WrittenSound(48000, {1 << 22, -(1 << 22)}));
}

TEST_P(AudioFilesContract, aNameIsTakenFromTheMomentTheFileIsMade)
{
    EXPECT_FALSE(files.isTaken(at("taken.wav")));

    AudioFile& file = open(at("taken.wav"), 44100);
    EXPECT_TRUE(files.isTaken(at("taken.wav")));
    EXPECT_FALSE(files.isTaken(at("free.wav")));
    EXPECT_FALSE(files.isTaken(at("no folder") / "taken.wav"));
    files.dispose(file);

    EXPECT_TRUE(files.isTaken(at("taken.wav")));
}

TEST_P(AudioFilesContract, aFileOfThatNameIsReplaced)
{
    const Steps shorter = noise(100, 3);
    AudioFile& former = open(at("same.wav"), 44100);
    write(former, samplesOf(noise(9000, 4)));
    files.dispose(former);

    AudioFile& file = open(at("same.wav"), 48000);
    write(file, samplesOf(shorter));
    files.dispose(file);

    EXPECT_EQ(world->read(at("same.wav")), WrittenSound(48000, shorter));
}

TEST_P(AudioFilesContract, openFilesAreIndependent)
{
    const std::array rates{44100.0, 48000.0, 96000.0};
    std::array<AudioFile*, 3> opened{};
    std::array<Steps, 3> steps;
    for (std::size_t i = 0; i < opened.size(); ++i) {
        opened[i] = &open(at(std::to_string(i) + ".wav"), rates[i]);
        steps[i] = noise(30000, 5 + static_cast<unsigned>(i));
    }

    for (std::size_t begin = 0; begin < 60000; begin += 1000)
        for (std::size_t i = 0; i < opened.size(); ++i) {
            const auto first = steps[i].begin() + static_cast<std::ptrdiff_t>(begin);
            write(*opened[i], samplesOf({first, first + 1000}));
        }
    for (AudioFile* file : opened)
        EXPECT_EQ(files.dispose(*file), std::nullopt);

    for (std::size_t i = 0; i < opened.size(); ++i)
        EXPECT_TRUE(world->read(at(std::to_string(i) + ".wav")) == WrittenSound(rates[i], steps[i])) << i;
}

TEST_P(AudioFilesContract, aFileHasNoErrorWhileItAcceptsSamples)
{
    AudioFile& file = open(at("well.wav"), 48000);
    EXPECT_EQ(file.failure(), std::nullopt);

    write(file, samplesOf(noise(48000, 8)));

    EXPECT_EQ(file.failure(), std::nullopt);
    files.dispose(file);
}

TEST_P(AudioFilesContract, anImpossibleRateIsRefusedAndMakesNoFile)
{
    for (const double rate : {0.0, -48000.0, std::nan("")}) {
        const auto file = files.create(at("refused.wav"), rate);

        ASSERT_FALSE(file) << rate;
        EXPECT_EQ(file.error().step, TapStep("Create recording file"));
        EXPECT_NE(file.error().status, 0);
        EXPECT_EQ(world->read(at("refused.wav")), std::nullopt);
    }
}

TEST_P(AudioFilesContract, anErrorHasADescription)
{
    const std::string words = files.describe({28});

    EXPECT_THAT(words, ::testing::Not(::testing::IsEmpty()));
    EXPECT_THAT(words, ::testing::Not(::testing::EndsWith(".")));
}

}  // namespace fadeloom
