// SPDX-License-Identifier: MIT
// What a tap does about the microphones of its output device.
#include "engine/AppTap.h"

#include "platform/simulated/SimulatedPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace fadeloom {
namespace {

using testing::ElementsAre;

constexpr auto streamUsage = kAudioDevicePropertyIOProcStreamUsage;

class AppTapInputsTest : public testing::Test {
protected:
    AppTapInputsTest()
    {
        const auto music = world.launchApp("Music");
        world.startPlaying(music, SimulatedSignal::constant(0.5F));
        process = world.audioSystem().audioObjectOf(music);
    }

    /// A tap on a device with these input streams.
    std::unique_ptr<AppTap> tapWithInputs(std::vector<std::uint32_t> inputs)
    {
        const auto headset =
            world.plug({.uid = "headset", .name = "Headset", .inputStreams = std::move(inputs)});
        auto tap = AppTap::create(
            world.audio(), {process}, "headset", headset, std::make_shared<TapParameters>(), "Music");
        return tap ? std::move(*tap) : nullptr;
    }

    /// Which input streams of the one aggregate device the procedure takes part in.
    std::vector<std::uint32_t> usage()
    {
        for (const auto& [id, device] : world.audioSystem().objects().devices) {
            if (device.aggregate)
                return device.procs.front().inputUsage;
        }
        return {};
    }

    SimulatedPlatform world{testing::TempDir()};
    AudioObjectID process = kAudioObjectUnknown;
};

TEST_F(AppTapInputsTest, microphoneOfTheDeviceIsSwitchedOff)
{
    const auto tap = tapWithInputs({1});
    ASSERT_TRUE(tap);

    EXPECT_EQ(tap->disabledInputs(), 1);
    EXPECT_THAT(usage(), ElementsAre(0, 1)) << "the tap's own stream stays on";
}

TEST_F(AppTapInputsTest, everyInputOfTheDeviceIsSwitchedOff)
{
    const auto tap = tapWithInputs({1, 2, 1});
    ASSERT_TRUE(tap);

    EXPECT_EQ(tap->disabledInputs(), 3);
    EXPECT_THAT(usage(), ElementsAre(0, 0, 0, 1));
}

TEST_F(AppTapInputsTest, deviceWithoutInputsIsNotAskedForItsUsage)
{
    const auto tap = tapWithInputs({});
    ASSERT_TRUE(tap);

    EXPECT_EQ(tap->disabledInputs(), 0);
    EXPECT_EQ(world.audio().readCount(streamUsage), 0);
    EXPECT_THAT(usage(), ElementsAre(1));
}

TEST_F(AppTapInputsTest, soundIsTheSameWithAndWithoutAMicrophone)
{
    const auto tap = tapWithInputs({1});
    ASSERT_TRUE(tap);

    world.runCycle(64);

    EXPECT_EQ(world.heard("headset").peak(1), 0.5F);
}

class AppTapInputsRefused : public AppTapInputsTest, public testing::WithParamInterface<AudioOperation> { };

TEST_P(AppTapInputsRefused, microphoneRunsAlongAndSoundPlays)
{
    world.refuse({.operation = GetParam(), .selector = streamUsage}, HowOften::always);

    const auto tap = tapWithInputs({1});
    ASSERT_TRUE(tap);
    world.runCycle(64);

    EXPECT_EQ(tap->disabledInputs(), 0);
    EXPECT_THAT(usage(), ElementsAre(1, 1));
    EXPECT_EQ(world.heard("headset").peak(1), 0.5F);
}

INSTANTIATE_TEST_SUITE_P(WhicheverCall, AppTapInputsRefused,
    testing::Values(
        AudioOperation::propertySize, AudioOperation::readProperty, AudioOperation::writeProperty));

}  // namespace
}  // namespace fadeloom
