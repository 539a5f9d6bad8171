// SPDX-License-Identifier: MIT
#include "engine/AppTap.h"

#include "platform/simulated/SimulatedPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace fadeloom {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AppTapTest : public testing::Test {
protected:
    AppTapTest()
    {
        speakers = plug({.uid = "speakers", .name = "Speakers"});
        music = world.launchApp("Music");
        world.startPlaying(music, SimulatedSignal::constant(0.5F));
        process = world.audioWorld().audioProcessOf(music);
    }

    OutputDevice plug(const SimulatedDeviceTraits& traits)
    {
        return {.id = world.plug(traits), .uid = traits.uid, .name = traits.name};
    }
    std::expected<std::unique_ptr<AppTap>, TapError> createOn(const OutputDevice& device)
    {
        return AppTap::create(world.audio(), {process}, device, TapScope::everyStream, parameters, "Music");
    }
    std::expected<std::unique_ptr<AppTap>, TapError> create() { return createOn(speakers); }

    SimulatedPlatform world{testing::TempDir()};
    std::shared_ptr<TapParameters> parameters = std::make_shared<TapParameters>();
    OutputDevice speakers;
    ProcessID music = -1;
    AudioProcessID process = 0;
};

TEST_F(AppTapTest, playsTheAppThroughItsRenderer)
{
    const auto tap = create();
    ASSERT_TRUE(tap);
    parameters->values.volume = 0;

    world.runCycle(480);

    EXPECT_LT(world.heard("speakers").at(479, 1), 0.5F);
    EXPECT_GT(world.heard("speakers").at(0, 1), 0.0F);
    EXPECT_TRUE(parameters->audioSeen);
    EXPECT_GT(parameters->takePeak(), 0.0F);
}

TEST_F(AppTapTest, knowsItsParameters)
{
    world.changeRate("speakers", 96000);
    const auto tap = create();
    ASSERT_TRUE(tap);

    EXPECT_THAT((*tap)->processIDs(), ElementsAre(process));
    EXPECT_EQ((*tap)->outputUID(), "speakers");
    EXPECT_EQ((*tap)->outputID(), speakers.id);
    EXPECT_EQ((*tap)->sampleRate(), 96000);
    EXPECT_EQ((*tap)->disabledInputs(), 0);
}

TEST_F(AppTapTest, knowsHowManyInputsOfItsDeviceAreSwitchedOff)
{
    const auto tap = createOn(plug({.uid = "headset", .name = "Headset", .inputStreams = 2}));
    ASSERT_TRUE(tap);

    EXPECT_EQ((*tap)->disabledInputs(), 2);
}

TEST_F(AppTapTest, asksForItsProcessesOnItsDeviceUnderTheAppsName)
{
    const auto tap = create();
    ASSERT_TRUE(tap);

    const auto& request = world.audio().tapRequests().back();

    EXPECT_THAT(request.processes, ElementsAre(process));
    EXPECT_EQ(request.output, speakers);
    EXPECT_EQ(request.name, "Music");
}

TEST_F(AppTapTest, leavesNothingWhenItEnds)
{
    auto tap = create();
    ASSERT_TRUE(tap);

    tap->reset();
    world.runCycle(64);

    EXPECT_THAT(world.audioWorld().state().taps, IsEmpty());
    EXPECT_EQ(world.heard("speakers").peak(1), 0.5F) << "the app is heard as without us";
}

TEST_F(AppTapTest, refusalIsForwardedAndLeavesNothing)
{
    world.refuse(AudioOperation::createTap, HowOften::once, -50);

    const auto tap = create();
    world.runCycle(64);

    ASSERT_FALSE(tap);
    EXPECT_EQ(tap.error(), (TapError{.step = "Create process tap", .status = -50}));
    EXPECT_EQ(world.heard("speakers").peak(1), 0.5F) << "the app is heard as without us";
}

TEST_F(AppTapTest, deviceThatIsGoneIsRefused)
{
    world.unplug("speakers");

    const auto tap = create();

    ASSERT_FALSE(tap);
    EXPECT_THAT(world.audioWorld().state().taps, IsEmpty());
}

TEST_F(AppTapTest, followsAnotherListOfProcesses)
{
    const auto tap = create();
    ASSERT_TRUE(tap);
    const auto second = world.openAudio(music);

    EXPECT_TRUE((*tap)->update({process, second}));

    EXPECT_THAT((*tap)->processIDs(), ElementsAre(process, second));
    EXPECT_THAT(world.audioWorld().state().taps.begin()->second.processes, ElementsAre(process, second));
}

TEST_F(AppTapTest, refusedUpdateLeavesTheOldProcesses)
{
    const auto tap = create();
    ASSERT_TRUE(tap);
    const auto second = world.openAudio(music);
    world.refuse(AudioOperation::setTapProcesses, HowOften::once);

    EXPECT_FALSE((*tap)->update({second}));
    EXPECT_THAT((*tap)->processIDs(), ElementsAre(process));

    EXPECT_TRUE((*tap)->update({second}));
    EXPECT_THAT((*tap)->processIDs(), ElementsAre(second));
}

TEST_F(AppTapTest, rebuiltTapContinuesWithTheSameParameters)
{
    parameters->values.volume = 0.5F;
    for (int i = 0; i < 2; ++i) {
        const auto tap = create();
        ASSERT_TRUE(tap);

        world.runCycle(64);

        EXPECT_EQ(world.heard("speakers").at(0, 1), 0.25F) << "at once, without fading in";
    }
}

TEST_F(AppTapTest, playsOnTheStereoPairThatTheDevicePrefers)
{
    const auto tap = createOn(plug({.uid = "interface",
        .name = "Interface",
        .outputStreams = {4},
        .stereoPair = {.left = 3, .right = 4}}));
    ASSERT_TRUE(tap);

    world.runCycle(64);

    EXPECT_EQ(world.heard("interface").peak(1), 0.0F);
    EXPECT_EQ(world.heard("interface").peak(2), 0.0F);
    EXPECT_EQ(world.heard("interface").peak(3), 0.5F);
    EXPECT_EQ(world.heard("interface").peak(4), 0.5F);
}

TEST(TapError, describesItselfByItsStatusOrItsReason)
{
    EXPECT_EQ((TapError{.step = "Create aggregate device", .status = -50}.description()),
        "Create aggregate device failed (OSStatus -50)");
    EXPECT_EQ((TapError{.step = "Unsupported tap format"}.description()),
        "Unsupported tap format failed (OSStatus 0)");
    EXPECT_EQ((TapError{.step = "Start device", .reason = "the device is gone"}.description()),
        "Start device failed: the device is gone");
}

}  // namespace
}  // namespace fadeloom
