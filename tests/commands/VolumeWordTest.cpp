// SPDX-License-Identifier: MIT
#include "commands/VolumeWord.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tuple>

namespace fadeloom {
namespace {

/// The result of a word for an app at 0.5 with a limit of 1.5; -1 for a word that is rejected.
float meant(std::string_view word, float present = 0.5F)
{
    const auto volume = VolumeWord::parse(word);
    return volume ? volume->from(present, 1.5F) : -1;
}

TEST(VolumeWord, isALevel)
{
    for (const auto& [word, level] : {
             std::tuple("0", 0.0F),
             std::tuple("0.5", 0.5F),
             std::tuple("50%", 0.5F),
             std::tuple("150%", 1.5F),
             std::tuple("=0.25", 0.25F),
             std::tuple("=25%", 0.25F),
             std::tuple("0dB", 1.0F),
             std::tuple("6dB", 1.99526F),
             std::tuple("=-6dB", 0.501187F),
             std::tuple("=+6dB", 1.99526F),
             std::tuple("3", 3.0F),
         }) {
        EXPECT_NEAR(meant(word), level, 1e-5) << word;
        EXPECT_FALSE(VolumeWord::parse(word)->isStep()) << word;
    }
}

TEST(VolumeWord, isAStep)
{
    for (const auto& [word, level] : {
             std::tuple("+5%", 0.55F),
             std::tuple("5%+", 0.55F),
             std::tuple("-5%", 0.45F),
             std::tuple("5%-", 0.45F),
             std::tuple("+0.05", 0.55F),
             std::tuple("0.05-", 0.45F),
             std::tuple("-3dB", 0.353973F),
             std::tuple("3dB+", 0.706269F),
         }) {
        EXPECT_NEAR(meant(word), level, 1e-5) << word;
        EXPECT_TRUE(VolumeWord::parse(word)->isStep()) << word;
    }
}

TEST(VolumeWord, aStepStopsAtTheEnds)
{
    EXPECT_EQ(meant("+500%"), 1.5F);
    EXPECT_EQ(meant("-500%"), 0);
    EXPECT_EQ(meant("+60dB"), 1.5F);
    EXPECT_EQ(meant("-3dB", 0), 0);
    EXPECT_GT(meant("+3dB", 0), 0) << "a step up leaves silence";
}

TEST(VolumeWord, stepsUpAndDownCancelOut)
{
    float volume = 0.5F;
    for (int i = 0; i < 300; ++i)
        volume = meant(i % 2 == 0 ? "+1%" : "1%-", volume);

    EXPECT_EQ(volume, 0.5F);
}

TEST(VolumeWord, anythingElseIsRefused)
{
    for (const auto* const word : {"", "=", "+", "-", "%", "dB", "loud", "5%%", "+-5%", "--5", "+5%+", "=5%-",
             "=-5%", "nan", "+inf", "1e400", "0,5", "0x10", " 5%", "5 %", "5%x"})
        EXPECT_FALSE(VolumeWord::parse(word)) << word;
}

}  // namespace
}  // namespace fadeloom
