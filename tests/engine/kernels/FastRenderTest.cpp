// SPDX-License-Identifier: MIT
// Corner cases of the fast implementation, compared with the plain one.
#include "engine/kernels/FastRender.h"

#include "tests/engine/kernels/KernelTest.h"
#include "tests/engine/kernels/RenderForms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace fadeloom {
namespace {

class FastRenderOf : public KernelTest {
protected:
    static constexpr auto same = std::nullopt;
    static constexpr float largest = std::numeric_limits<float>::max();

    static StereoBlock sound(std::size_t frames, float amplitude = 0.5F)
    {
        StereoBlock block{std::vector<float>(frames), std::vector<float>(frames)};
        for (std::size_t i = 0; i < frames; ++i) {
            block.left[i] = amplitude * std::sin(0.1F * static_cast<float>(i) + 0.5F);
            block.right[i] = amplitude * std::cos(0.03F * static_cast<float>(i));
        }
        return block;
    }
    static StereoBlock constant(std::size_t frames, float left, float right)
    {
        return {std::vector(frames, left), std::vector(frames, right)};
    }
    /// With this many bands that are not flat.
    static EQCoefficients bands(std::size_t count)
    {
        std::vector<float> gains(10);
        for (std::size_t i = 0; i < count; ++i)
            gains[i * 7 % 10] = i % 2 == 0 ? 6 : -5;
        return eqCoefficients(gains, 48000);
    }
    static RenderSettings equalized(const EQCoefficients& sections)
    {
        return {.isEqualized = true, .preamp = 0.7F, .sections = sections};
    }

    const EQCoefficients flat{};
    const EQCoefficients fiveBands = bands(5);
    const EQCoefficients tenBands = bands(10);

    FastRenderOf()
    {
        startFrom({
            .gain = {.coefficient = 0.001F},
            .duck = {.coefficient = 0.0001F},
            .limiter = {.release = 0.0003F},
        });
    }

    void startFrom(const RenderState& state) { forms.emplace(kernels(), state); }
    std::optional<std::string> render(const RenderSettings& settings, const StereoBlock& block)
    {
        return forms->render(settings, block);
    }

    std::optional<RenderForms> forms;
};

TEST_P(FastRenderOf, anyNumberOfBandsInABlockOfAnyLengthIsExact)
{
    for (std::size_t count = 0; count <= 10; ++count) {
        const auto sections = bands(count);
        for (std::size_t frames = 0; frames <= 40; ++frames)
            ASSERT_EQ(render(equalized(sections), sound(frames)), same) << count << " bands, " << frames;
        for (const std::size_t frames : {511U, 512U, 513U, 1023U, 1536U, 8192U})
            ASSERT_EQ(render(equalized(sections), sound(frames)), same) << count << " bands, " << frames;
    }
}

TEST_P(FastRenderOf, aBlockWithoutFramesChangesNothing)
{
    (void)render(equalized(tenBands), sound(64));
    const auto before = forms->fastState();

    EXPECT_EQ(render({.gainTarget = 0, .isEqualized = true, .sections = flat}, {}), same);

    EXPECT_EQ(forms->fastState(), before);
}

TEST_P(FastRenderOf, bandsThatAreSwitchedOffDecayFromTheFirstFrameOn)
{
    for (const std::size_t frames : {1U, 2U, 3U, 64U}) {
        ASSERT_EQ(render(equalized(tenBands), sound(256)), same);
        for (int call = 0; call < 4; ++call)
            ASSERT_EQ(render(equalized(fiveBands), sound(frames)), same) << frames << ", call " << call;
        ASSERT_EQ(render(equalized(flat), sound(frames)), same);
        ASSERT_EQ(render(equalized(flat), sound(64)), same);
    }
}

TEST_P(FastRenderOf, newSectionsTakeEffectDuringSilence)
{
    ASSERT_EQ(render(equalized(flat), sound(64)), same);
    ASSERT_EQ(render(equalized(tenBands), constant(512, 0, -0.0F)), same);
    ASSERT_EQ(render(equalized(tenBands), sound(512)), same);
    ASSERT_EQ(render(equalized(fiveBands), constant(512, 0, 0)), same);
    ASSERT_EQ(render(equalized(fiveBands), sound(512)), same);
}

TEST_P(FastRenderOf, newSectionsTakeEffectInAShortBlock)
{
    for (const auto& sections : {tenBands, fiveBands, flat, tenBands}) {
        ASSERT_EQ(render(equalized(sections), sound(3)), same);
        ASSERT_EQ(render(equalized(sections), sound(512)), same);
    }
}

TEST_P(FastRenderOf, theEqualizerResumesWhereItWasSwitchedOff)
{
    ASSERT_EQ(render(equalized(tenBands), sound(512)), same);
    ASSERT_EQ(render({.sections = tenBands}, sound(512)), same);
    ASSERT_EQ(render(equalized(tenBands), constant(512, 0, 0)), same);
}

TEST_P(FastRenderOf, silenceRemainsSilence)
{
    ASSERT_EQ(render(equalized(tenBands), sound(48000)), same);
    for (int second = 0; second < 8; ++second)
        ASSERT_EQ(render(equalized(tenBands), constant(48000, 0, 0)), same);

    // The plain implementation ends in denormals.
    EXPECT_EQ(forms->fastState().left, EQChannelState{});
    EXPECT_EQ(forms->fastState().right, EQChannelState{});
    EXPECT_EQ(render(equalized(tenBands), constant(512, -0.0F, 0)), same);
    EXPECT_FALSE(std::signbit(forms->output().left[0]));
    EXPECT_EQ(render(equalized(tenBands), sound(512)), same);
}

TEST_P(FastRenderOf, outputIsFlushedAtTheSameThreshold)
{
    const auto threshold = static_cast<float>(eqOutputFlush);
    std::vector<float> samples;
    for (const float from : {threshold, -threshold}) {
        for (const float towards : {0.0F, 2 * from}) {
            float sample = from;
            for (int i = 0; i < 8; ++i, sample = std::nextafter(sample, towards))
                samples.push_back(sample);
        }
    }

    EXPECT_EQ(render({.isEqualized = true, .sections = flat}, {samples, samples}), same);

    EXPECT_TRUE(std::ranges::count(forms->output().left, 0.0F) > 0);
    EXPECT_TRUE(std::ranges::count(forms->output().left, 0.0F) < std::ssize(samples));
}

TEST_P(FastRenderOf, finiteSamplesThatOverflowAreSilenceOnEitherSideOfTheEqualizer)
{
    for (const auto& block : {constant(37, largest, 0.5F), constant(512, 0.5F, -largest)}) {
        EXPECT_EQ(render({.isEqualized = true, .preamp = 4, .sections = tenBands}, block), same);
        EXPECT_EQ(render({.isEqualized = true, .preamp = 1, .sections = tenBands}, block), same);
        EXPECT_EQ(render({.gainTarget = 2, .sections = tenBands}, block), same);
    }
    EXPECT_EQ(
        render({.gainTarget = 2, .isEqualized = true, .preamp = 4, .sections = tenBands}, sound(512)), same);
}

TEST_P(FastRenderOf, sectionsThatOverflowStaySilent)
{
    EQCoefficients unstable = fiveBands;
    unstable[3] = {.b0 = 1.5, .b1 = -3, .b2 = 2, .a1 = 2.5, .a2 = 3};
    for (int call = 0; call < 6; ++call)
        ASSERT_EQ(render(equalized(unstable), sound(512)), same) << call;

    EXPECT_TRUE(std::isnan(forms->plainState().left.z1[3]));
    EXPECT_EQ(render(equalized(fiveBands), sound(512)), same);
    EXPECT_EQ(render(equalized(flat), sound(512)), same);
}

TEST_P(FastRenderOf, aRampThatStopsShortOfItsTargetIsExact)
{
    // In single precision these steps vanish slightly below the target.
    const float slow = onePoleCoefficient(192000, 0.05);
    startFrom({.gain = {.current = 0.5F, .coefficient = slow}, .limiter = {.release = 0.001F}});
    for (int call = 0; call < 40; ++call)
        ASSERT_EQ(render({.gainTarget = 2, .sections = flat}, sound(8192, 0.3F)), same) << call;

    EXPECT_NE(forms->fastState().gain.current, 2.0F) << "it did not stop short";
}

TEST_P(FastRenderOf, aReleaseThatStopsShortOf1IsExact)
{
    ASSERT_EQ(render(equalized(tenBands), sound(512, 4)), same);
    for (int call = 0; call < 20; ++call)
        ASSERT_EQ(render(equalized(tenBands), sound(8192, 0.01F)), same) << call;

    const auto stopped = forms->fastState().limiter.reduction;
    EXPECT_LT(stopped, 1.0F) << "it did not stop short";
    ASSERT_EQ(render(equalized(tenBands), sound(512, 0.01F)), same);
    EXPECT_EQ(forms->fastState().limiter.reduction, stopped);
    EXPECT_EQ(render({.gainTarget = 1.5F, .sections = flat}, sound(512, 0.01F)), same);
    EXPECT_EQ(render(equalized(tenBands), sound(512, 4)), same);
}

TEST_P(FastRenderOf, aBoostThatStartsWithinABlockIsLimitedFromThereOn)
{
    startFrom({
        .gain = {.current = 0.9F, .coefficient = 0.01F},
        .limiter = {.reduction = 0.8F, .release = 0.0001F},
    });

    EXPECT_EQ(render({.gainTarget = 1.2F, .sections = flat}, sound(256, 1)), same);
}

TEST_P(FastRenderOf, nanTargetsAreTheSameSilence)
{
    for (const float target :
        {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()}) {
        (void)render({.gainTarget = target, .sections = flat}, sound(64));
        EXPECT_EQ(forms->output().left, std::vector<float>(64));
        EXPECT_EQ(forms->output().right, std::vector<float>(64));
    }
}

INSTANTIATE_TEST_SUITE_P(Kernels, FastRenderOf, KernelTest::every(), KernelTest::name);

}  // namespace
}  // namespace fadeloom
