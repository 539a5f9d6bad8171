// SPDX-License-Identifier: MIT
// The renderer with different buffer layouts.
#include "engine/Renderer.h"

#include "tests/engine/CycleBuffers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <vector>

namespace fadeloom {
namespace {

using testing::Each;
using testing::ElementsAre;

constexpr TapFormat interleaved{};
constexpr TapFormat planar{.tapBufferCount = 2, .isTapInterleaved = false};
constexpr float stale = 9;  // The contents of an output buffer before it is written.

class RendererLayoutTest : public testing::Test {
protected:
    void render(const TapFormat& layout)
    {
        Renderer(parameters, layout).render({}, input.view(), output.view());
    }

    std::shared_ptr<TapParameters> parameters = std::make_shared<TapParameters>();
    CycleBuffers input;
    CycleBuffers output;
};

TEST_F(RendererLayoutTest, smallestOutputBufferLimitsTheCycle)
{
    input.add(2, 1024, 0.5F);
    output.add(1, 1024, stale).add(1, 512, stale).addNull(0, 0);

    render(interleaved);

    EXPECT_THAT(output.samples(1), Each(0.5F));
    const auto left = output.samples(0);
    EXPECT_EQ(std::ranges::count(left, 0.5F), 512);
    EXPECT_EQ(std::ranges::count(left, 0.0F), 512) << "the rest is silent, not stale";
}

TEST_F(RendererLayoutTest, shortTapLimitsTheCycle)
{
    input.add(2, {0.1F, 0.2F, 0.3F, 0.4F});
    output.add(2, 3, stale);

    render(interleaved);

    EXPECT_THAT(output.samples(0), ElementsAre(0.1F, 0.2F, 0.3F, 0.4F, 0, 0));
}

TEST_F(RendererLayoutTest, cycleGoesNoFurtherThanItsScratch)
{
    input.add(2, Renderer::maximumFrames + 100, 0.5F);
    output.add(2, Renderer::maximumFrames + 100, stale);

    render(interleaved);

    const auto left = output.channel(0, 0);
    EXPECT_EQ(std::ranges::count(left, 0.5F), std::ssize(left) - 100);
    EXPECT_EQ(std::ranges::count(left, 0.0F), 100);
}

TEST_F(RendererLayoutTest, tapIsTheLastOfTheInputs)
{
    input.add(2, 2, 0.9F).add(1, 2, 0.8F).add(2, {0.1F, 0.2F, 0.3F, 0.4F});
    output.add(2, 2, stale);

    render(interleaved);

    EXPECT_THAT(output.samples(0), ElementsAre(0.1F, 0.2F, 0.3F, 0.4F));
}

TEST_F(RendererLayoutTest, monoTapFillsBothSides)
{
    input.add(1, {0.1F, 0.2F});
    output.add(2, 2, stale);

    render(interleaved);

    EXPECT_THAT(output.samples(0), ElementsAre(0.1F, 0.1F, 0.2F, 0.2F));
}

TEST_F(RendererLayoutTest, tapOfManyChannelsGivesItsFirstTwo)
{
    input.add(4, {0.1F, 0.2F, 0.3F, 0.4F, 0.5F, 0.6F, 0.7F, 0.8F});
    output.add(2, 2, stale);

    render(interleaved);

    EXPECT_THAT(output.samples(0), ElementsAre(0.1F, 0.2F, 0.5F, 0.6F));
}

TEST_F(RendererLayoutTest, planarTapIsReadFromItsTwoBuffers)
{
    input.add(1, 2, 0.9F).add(1, {0.1F, 0.2F}).add(1, {0.3F, 0.4F, 0.5F});
    output.add(2, 2, stale);

    render(planar);

    EXPECT_THAT(output.samples(0), ElementsAre(0.1F, 0.3F, 0.2F, 0.4F));
}

TEST_F(RendererLayoutTest, planarTapOfOneBufferFeedsBothSides)
{
    input.add(1, 2, 0.9F).add(1, {0.1F, 0.2F});
    output.add(2, 2, stale);

    render({.tapBufferCount = 1, .isTapInterleaved = false});

    EXPECT_THAT(output.samples(0), ElementsAre(0.1F, 0.1F, 0.2F, 0.2F));
}

TEST_F(RendererLayoutTest, planarTapOfThreeBuffersGivesItsFirstTwo)
{
    input.add(1, 2, 0.9F).add(1, {0.1F, 0.2F}).add(1, {0.3F, 0.4F}).add(1, {0.5F, 0.6F});
    output.add(2, 2, stale);

    render({.tapBufferCount = 3, .isTapInterleaved = false});

    EXPECT_THAT(output.samples(0), ElementsAre(0.1F, 0.3F, 0.2F, 0.4F));
}

TEST_F(RendererLayoutTest, shorterSideOfAPlanarTapLimitsTheCycle)
{
    input.add(1, {0.1F, 0.2F}).add(1, std::vector{0.3F});
    output.add(2, 2, stale);

    render(planar);

    EXPECT_THAT(output.samples(0), ElementsAre(0.1F, 0.3F, 0, 0));
}

TEST_F(RendererLayoutTest, missingTapGivesASilentCycle)
{
    input.add(1, 4, 0.5F);
    output.add(2, 4, stale);

    render(planar);

    EXPECT_THAT(output.samples(0), Each(0.0F));
    EXPECT_EQ(parameters->takePeak(), 0.0F);
    EXPECT_FALSE(parameters->audioSeen);
}

TEST_F(RendererLayoutTest, tapWithoutMemoryOrChannelsGivesASilentCycle)
{
    output.add(2, 4, stale);

    input.addNull(2, 4);
    render(interleaved);
    EXPECT_THAT(output.samples(0), Each(0.0F));

    input.add(0, std::vector<float>(8, 0.5F));
    render(interleaved);
    EXPECT_THAT(output.samples(0), Each(0.0F));

    input.add(1, 4, 0.5F).addNull(1, 4);
    render(planar);
    EXPECT_THAT(output.samples(0), Each(0.0F));

    input.addNull(1, 4).add(1, 4, 0.5F);
    render(planar);
    EXPECT_THAT(output.samples(0), Each(0.0F));
    EXPECT_EQ(parameters->takePeak(), 0.0F);
}

TEST_F(RendererLayoutTest, monoDeviceGetsHalfOfBothSides)
{
    input.add(2, {0.2F, 0.6F, -0.5F, 0.5F});
    output.add(1, 2, stale);

    render({.output = {1, 1}});

    EXPECT_THAT(output.samples(0), ElementsAre((0.2F + 0.6F) * 0.5F, 0.0F));
}

TEST_F(RendererLayoutTest, otherChannelsOfTheDeviceAreSilent)
{
    input.add(2, {0.1F, 0.2F, 0.3F, 0.4F});
    output.add(5, 2, stale);

    render({.output = {3, 4}});

    EXPECT_THAT(output.samples(0), ElementsAre(0, 0, 0.1F, 0.2F, 0, 0, 0, 0.3F, 0.4F, 0));
}

TEST_F(RendererLayoutTest, stereoPairMayBeCrossedAndSpreadOverBuffers)
{
    input.add(2, {0.1F, 0.2F, 0.3F, 0.4F});
    output.add(2, 2, stale).addNull(2, 2).add(2, 2, stale);

    render({.output = {6, 1}});

    EXPECT_THAT(output.samples(0), ElementsAre(0.2F, 0, 0.4F, 0));
    EXPECT_THAT(output.samples(2), ElementsAre(0, 0.1F, 0, 0.3F));
}

TEST_F(RendererLayoutTest, stereoPairOfADeviceWithoutThoseChannelsIsHeardNowhere)
{
    input.add(2, 2, 0.5F);
    output.add(2, 2, stale);

    render({.output = {7, 4'000'000'000}});

    EXPECT_THAT(output.samples(0), Each(0.0F));
    EXPECT_EQ(parameters->takePeak(), 0.5F) << "it was rendered all the same";
}

TEST_F(RendererLayoutTest, emptyOutputIsHarmless)
{
    input.add(2, 16, 0.5F);

    render(interleaved);

    EXPECT_EQ(parameters->takePeak(), 0.5F);
}

}  // namespace
}  // namespace fadeloom
