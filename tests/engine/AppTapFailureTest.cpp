// SPDX-License-Identifier: MIT
// Each step of building a tap can be refused; nothing is left behind then.
#include "engine/AppTap.h"

#include "platform/simulated/SimulatedPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace fadeloom {
namespace {

using enum AudioOperation;

constexpr AudioStatus refused = -50;

class AppTapFailureTest : public testing::Test {
protected:
    AppTapFailureTest()
    {
        speakers = world.plug({.uid = "speakers", .name = "Speakers"});
        const auto music = world.launchApp("Music");
        world.startPlaying(music, SimulatedSignal::constant(0.5F));
        process = world.audioSystem().audioObjectOf(music);
    }

    std::optional<TapError> errorOfCreating()
    {
        auto tap = AppTap::create(
            world.audio(), {process}, "speakers", speakers, std::make_shared<TapParameters>(), "Music");
        return tap ? std::nullopt : std::optional(tap.error());
    }

    void expectNothingOfOursIsLeft()
    {
        EXPECT_TRUE(world.audioSystem().objects().taps.empty());
        EXPECT_EQ(world.audioSystem().objects().devices.size(), 1U);
        world.runCycle(64);
        EXPECT_EQ(world.heard("speakers").peak(1), 0.5F) << "the app is heard as without us";
    }

    SimulatedPlatform world{testing::TempDir()};
    AudioObjectID speakers = kAudioObjectUnknown;
    AudioObjectID process = kAudioObjectUnknown;
};

TEST_F(AppTapFailureTest, isToldWithItsStatus)
{
    EXPECT_EQ((TapError{"Create aggregate device", -50}.description()),
        "Create aggregate device failed (OSStatus -50)");
    EXPECT_EQ(
        (TapError{"Unsupported tap format", 0}.description()), "Unsupported tap format failed (OSStatus 0)");
}

struct RefusedStep {
    AudioOperation operation;
    const char* step;
};

class AppTapRefusedStep : public AppTapFailureTest, public testing::WithParamInterface<RefusedStep> { };

TEST_P(AppTapRefusedStep, isNamedAndLeavesNothing)
{
    world.refuse(GetParam().operation, HowOften::once, refused);

    EXPECT_EQ(errorOfCreating(), (TapError{GetParam().step, refused}));
    expectNothingOfOursIsLeft();
}

INSTANTIATE_TEST_SUITE_P(EachStep, AppTapRefusedStep,
    testing::Values(RefusedStep{createProcessTap, "Create process tap"},
        RefusedStep{createAggregateDevice, "Create aggregate device"},
        RefusedStep{createIOProc, "Create IOProc"}, RefusedStep{start, "Start device"}),
    [](const auto& instance) { return "step" + std::to_string(instance.index); });

TEST_F(AppTapFailureTest, formatThatCannotBeReadIsRefused)
{
    world.refuse({.operation = readProperty, .selector = kAudioTapPropertyFormat}, HowOften::once);

    EXPECT_EQ(errorOfCreating(), (TapError{"Unsupported tap format", 0}));
    expectNothingOfOursIsLeft();
}

TEST_F(AppTapFailureTest, formatWithOtherSamplesIsRefused)
{
    const auto good = world.audioSystem().tapFormat();
    auto integers = good;
    integers.formatFlags &= ~kAudioFormatFlagIsFloat;
    integers.bitsPerChannel = 16;
    auto wholeNumbers = good;
    wholeNumbers.formatFlags &= ~kAudioFormatFlagIsFloat;
    auto doubles = good;
    doubles.bitsPerChannel = 64;

    for (const auto& format : {integers, wholeNumbers, doubles}) {
        world.audioSystem().setTapFormat(format);
        EXPECT_EQ(errorOfCreating(), (TapError{"Unsupported tap format", statusCode("lpcm")}));
        expectNothingOfOursIsLeft();
    }
}

TEST_F(AppTapFailureTest, formatThatIsNotLinearIsRefusedWithItsCode)
{
    auto format = world.audioSystem().tapFormat();
    format.formatID = fourCharacterCode("aac ");
    world.audioSystem().setTapFormat(format);

    EXPECT_EQ(errorOfCreating(), (TapError{"Unsupported tap format", statusCode("aac ")}));
}

TEST_F(AppTapFailureTest, deviceThatIsGoneIsRefused)
{
    world.unplug("speakers");

    const auto error = errorOfCreating();

    ASSERT_TRUE(error);
    EXPECT_EQ(error->step, "Create aggregate device");
    EXPECT_TRUE(world.audioSystem().objects().taps.empty());
}

}  // namespace
}  // namespace fadeloom
