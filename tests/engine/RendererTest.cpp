// SPDX-License-Identifier: MIT
#include "engine/Renderer.h"

#include "tests/engine/CycleBuffers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <limits>
#include <memory>
#include <mutex>
#include <vector>

namespace fadeloom {
namespace {

using testing::Each;
using testing::FloatNear;

class RendererTest : public testing::Test {
protected:
    void change(auto&& changes)
    {
        const std::scoped_lock guard(parameters->lock);
        changes(parameters->values);
    }

    /// Renders frames of one value on both channels and returns the left channel of the output.
    std::vector<float> play(Renderer& renderer, float value, std::size_t frames)
    {
        CycleBuffers input;
        CycleBuffers output;
        input.add(2, frames, value);
        output.add(2, frames);
        renderer.render({}, input.view(), output.view());
        return output.channel(0, 0);
    }

    std::shared_ptr<TapParameters> parameters = std::make_shared<TapParameters>();
};

TEST_F(RendererTest, atFullVolumeSoundPassesUntouched)
{
    Renderer renderer(parameters, {});
    CycleBuffers input;
    CycleBuffers output;
    input.add(2, {1, -1, 0.3F, 0.7F, -0.123456F, 1});
    output.add(2, 3);

    renderer.render({}, input.view(), output.view());

    EXPECT_EQ(output.samples(0), input.samples(0));
    EXPECT_EQ(parameters->takePeak(), 1.0F);
}

TEST_F(RendererTest, duckingLowersTheOutput)
{
    change([](auto& values) { values.duck = 0.25F; });
    Renderer renderer(parameters, {});

    EXPECT_THAT(play(renderer, 1, 4), Each(0.25F));
}

TEST_F(RendererTest, boostedPeaksStopAtTheCeiling)
{
    change([](auto& values) { values.volume = 2; });
    Renderer renderer(parameters, {});
    std::vector<float> samples(9600);
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = 0.8F * static_cast<float>(std::sin(static_cast<double>(i / 2) * 0.13));
    float highest = 0;

    CycleBuffers input;
    CycleBuffers output;
    input.add(2, samples);
    output.add(2, samples.size() / 2);
    renderer.render({}, input.view(), output.view());
    for (const float sample : output.samples(0))
        highest = std::max(highest, std::abs(sample));

    EXPECT_NEAR(highest, 0.891F, 1e-6);
    EXPECT_EQ(parameters->takePeak(), highest);
}

TEST_F(RendererTest, equalizerBringsTheLimiterAlongEvenWhenItIsFlat)
{
    change([](auto& values) { values.eqEnabled = true; });
    Renderer renderer(parameters, {});

    EXPECT_THAT(play(renderer, 1, 512), Each(FloatNear(0.891F, 1e-6F)));
}

TEST_F(RendererTest, mutingRampsToSilenceAndUnmutingBack)
{
    Renderer renderer(parameters, {});
    change([](auto& values) { values.muted = true; });

    const auto falling = play(renderer, 1, 8192);
    play(renderer, 1, 8192);
    const auto silent = play(renderer, 1, 64);
    change([](auto& values) { values.muted = false; });
    const auto rising = play(renderer, 1, 8192);
    play(renderer, 1, 8192);
    const auto loud = play(renderer, 1, 16);

    EXPECT_GT(falling.front(), 0.99F);
    EXPECT_TRUE(std::ranges::is_sorted(falling, std::greater{}));
    EXPECT_NEAR(falling[960], std::exp(-1.0F), 0.01F) << "twenty milliseconds on";
    EXPECT_THAT(silent, Each(0.0F));
    EXPECT_LT(rising.front(), 0.01F);
    EXPECT_TRUE(std::ranges::is_sorted(rising));
    EXPECT_THAT(loud, Each(FloatNear(1, 0.0002F)));
}

TEST_F(RendererTest, startsAtItsTargetWithoutFadingIn)
{
    change([](auto& values) {
        values.volume = 0.5F;
        values.duck = 0.5F;
    });
    Renderer half(parameters, {});
    EXPECT_EQ(play(half, 1, 4).front(), 0.25F);

    change([](auto& values) { values.muted = true; });
    Renderer muted(parameters, {});
    EXPECT_THAT(play(muted, 1, 4), Each(0.0F));
}

TEST_F(RendererTest, madeWhileSettingsAreWrittenItStartsAtOne)
{
    change([](auto& values) { values.volume = 0; });
    std::unique_lock guard(parameters->lock);
    Renderer renderer(parameters, {});

    const auto before = play(renderer, 1, 4);
    guard.unlock();
    const auto after = play(renderer, 1, 4);

    EXPECT_THAT(before, Each(1.0F));
    EXPECT_TRUE(std::ranges::is_sorted(after, std::greater{})) << "on its way to the volume";
    EXPECT_LT(after.back(), 1.0F);
}

TEST_F(RendererTest, settingsThatAreBeingWrittenCountFromTheNextCycle)
{
    Renderer renderer(parameters, {});
    std::unique_lock guard(parameters->lock);
    parameters->values.muted = true;

    EXPECT_THAT(play(renderer, 1, 64), Each(1.0F));

    guard.unlock();
    EXPECT_LT(play(renderer, 1, 64).back(), 1.0F);
}

TEST_F(RendererTest, newCoefficientsAreHeardInTheNextCycle)
{
    change([](auto& values) { values.eqEnabled = true; });
    Renderer renderer(parameters, {});
    EXPECT_EQ(play(renderer, 0.5F, 1).front(), 0.5F);

    parameters->setEQ(std::vector{BiquadCoefficients{.b0 = 0.5}});

    EXPECT_EQ(play(renderer, 0.5F, 1).front(), 0.25F);
}

TEST_F(RendererTest, coefficientsOfTheFirstSnapshotAreTakenAtVersionZero)
{
    parameters->coefficients[0].b0 = 0.5;
    change([](auto& values) { values.eqEnabled = true; });
    Renderer renderer(parameters, {});

    EXPECT_EQ(play(renderer, 0.5F, 1).front(), 0.25F);
}

TEST_F(RendererTest, peakIsTheHighestSinceItWasTaken)
{
    Renderer renderer(parameters, {});

    play(renderer, 0.5F, 16);
    play(renderer, -0.75F, 16);
    play(renderer, 0.25F, 16);

    EXPECT_EQ(parameters->takePeak(), 0.75F);
    EXPECT_EQ(parameters->takePeak(), 0.0F);
}

TEST_F(RendererTest, firstSampleThatIsNotZeroIsNoticed)
{
    Renderer renderer(parameters, {});
    play(renderer, 0, 512);
    play(renderer, -0.0F, 512);
    EXPECT_FALSE(parameters->audioSeen);

    play(renderer, std::numeric_limits<float>::quiet_NaN(), 512);
    EXPECT_FALSE(parameters->audioSeen) << "read as silence";

    play(renderer, 1e-30F, 1);
    EXPECT_TRUE(parameters->audioSeen);
}

TEST_F(RendererTest, soundIsNoticedOnEitherSideAndWhileMuted)
{
    change([](auto& values) { values.muted = true; });
    Renderer renderer(parameters, {});
    CycleBuffers input;
    CycleBuffers output;
    input.add(2, {0, 0, 0, 0, 0, 0.5F});
    output.add(2, 3);

    renderer.render({}, input.view(), output.view());

    EXPECT_TRUE(parameters->audioSeen);
}

}  // namespace
}  // namespace fadeloom
