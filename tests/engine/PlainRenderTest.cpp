// SPDX-License-Identifier: MIT
#include "engine/PlainRender.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

namespace fadeloom {
namespace {

using testing::ElementsAre;

const EQCoefficients flat{};
const EQCoefficients curve = eqCoefficients(std::vector<float>{6, 5, 4, 3, 2, 1, 0, -1, -2, -3}, 48000);

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinite = std::numeric_limits<float>::infinity();

std::vector<float> sine(std::size_t frames, float amplitude = 0.5F)
{
    std::vector<float> samples(frames);
    for (std::size_t i = 0; i < frames; ++i)
        samples[i] = amplitude * std::sin(0.1F * static_cast<float>(i));
    return samples;
}

TEST(PlainRender, withoutFramesThereIsNoPeakAndNoChange)
{
    RenderState state;

    EXPECT_EQ(renderPlain(state, {.gainTarget = 0, .sections = flat}, {}, {}), 0.0F);
    EXPECT_EQ(state, RenderState{});
}

TEST(PlainRender, givesTheHighestMagnitudeOfEitherSide)
{
    RenderState state;
    std::vector<float> left{0.1F, -0.6F, 0.2F};
    std::vector<float> right{0.3F, 0.5F, -0.4F};

    EXPECT_EQ(renderPlain(state, {.sections = flat}, left, right), 0.6F);
}

TEST(PlainRender, filterStateIsKeptWhileTheEqualizerIsOff)
{
    RenderState state;
    auto left = sine(200);
    auto right = sine(200);
    (void)renderPlain(state, {.isEqualized = true, .sections = curve}, left, right);
    const auto memory = state.left;
    ASSERT_NE(memory, EQChannelState{});

    (void)renderPlain(state, {.isEqualized = false, .sections = curve}, left, right);

    EXPECT_EQ(state.left, memory);
}

TEST(PlainRender, preampCountsOnlyWhileTheEqualizerIsOn)
{
    RenderState state;
    std::vector<float> left{0.25F};
    std::vector<float> right{0.25F};
    (void)renderPlain(state, {.isEqualized = false, .preamp = 2, .sections = flat}, left, right);
    EXPECT_THAT(left, ElementsAre(0.25F));

    (void)renderPlain(state, {.isEqualized = true, .preamp = 2, .sections = flat}, left, right);
    EXPECT_THAT(left, ElementsAre(0.5F));
}

TEST(PlainRender, tinyOutputIsFlushedButTheStateIsKept)
{
    RenderState state;
    std::vector<float> left{1e-26F};
    std::vector<float> right{-1e-26F};

    (void)renderPlain(state, {.isEqualized = true, .sections = curve}, left, right);

    EXPECT_THAT(left, ElementsAre(0.0F));
    EXPECT_FALSE(std::signbit(right[0]));
    EXPECT_NE(state.left, EQChannelState{});
}

TEST(PlainRender, productsAreRoundedBeforeTheyAreAdded)
{
    // 1 + 2^-20 times 1 + 2^-40 is 1 + 2^-20 + 2^-40 and a remainder of 2^-60 that only a fused operation keeps.
    constexpr double small = 0x1p-20;
    constexpr double smaller = 0x1p-40;
    EQCoefficients sections{};
    sections[0].b0 = 1 + smaller;
    RenderState state;
    state.left.z1[0] = -(1 + small + smaller);
    std::vector<float> left{1 + static_cast<float>(small)};
    std::vector<float> right{0};

    (void)renderPlain(state, {.isEqualized = true, .sections = sections}, left, right);

    EXPECT_THAT(left, ElementsAre(0.0F));
}

TEST(PlainRender, limiterIsUpToDateBeforeItIsNeeded)
{
    RenderState state{.limiter = {.release = 0.001F}};
    std::vector<float> left{1};
    std::vector<float> right{0};

    (void)renderPlain(state, {.sections = flat}, left, right);

    EXPECT_EQ(left[0], 1.0F) << "not applied";
    EXPECT_EQ(state.limiter.reduction, PeakLimiter::ceiling) << "but followed";
}

class PlainRenderOfBadSamples : public testing::TestWithParam<bool> { };

TEST_P(PlainRenderOfBadSamples, treatsThemAsSilence)
{
    const RenderSettings settings{.isEqualized = GetParam(), .preamp = 3, .sections = curve};
    auto bad = sine(64);
    auto silent = bad;
    for (const auto& [frame, sample] :
        {std::pair{3, notANumber}, {20, infinite}, {40, -infinite}, {63, notANumber}}) {
        bad[static_cast<std::size_t>(frame)] = sample;
        silent[static_cast<std::size_t>(frame)] = 0;
    }
    auto badRight = bad;
    auto silentRight = silent;
    RenderState badState;
    RenderState silentState;

    const float badPeak = renderPlain(badState, settings, bad, badRight);
    const float silentPeak = renderPlain(silentState, settings, silent, silentRight);

    EXPECT_EQ(bad, silent);
    EXPECT_EQ(badRight, silentRight);
    EXPECT_EQ(badPeak, silentPeak);
    EXPECT_EQ(badState, silentState);
}

TEST_P(PlainRenderOfBadSamples, soundContinuesAfterSamplesThatOverflow)
{
    const RenderSettings settings{.gainTarget = 2, .isEqualized = GetParam(), .preamp = 4, .sections = curve};
    RenderState state{.limiter = {.release = 0.01F}};
    std::vector<float> left(16, std::numeric_limits<float>::max());
    std::vector<float> right(16, std::numeric_limits<float>::lowest());

    (void)renderPlain(state, settings, left, right);

    for (const float sample : left)
        EXPECT_TRUE(std::isfinite(sample));
    auto later = sine(48000);
    auto laterRight = later;
    EXPECT_GT(renderPlain(state, settings, later, laterRight), 0.5F);
    for (const float sample : later)
        EXPECT_TRUE(std::isfinite(sample));
}

INSTANTIATE_TEST_SUITE_P(WithAndWithoutEqualizer, PlainRenderOfBadSamples, testing::Bool());

}  // namespace
}  // namespace fadeloom
