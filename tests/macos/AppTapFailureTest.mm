// SPDX-License-Identifier: MIT
// Each step of building a tap can fail: exactly what was built is torn down, and the error names the step.
#include "tests/macos/AppTapStage.h"

namespace fadeloom {
namespace {

struct Refusal {
    std::string call;
    OSStatus status;
    TapError error;
    std::vector<std::string> undone;
};

class MacOSAppTapInputs : public AppTapStage { };

class MacOSAppTapFailure : public AppTapStage, public ::testing::WithParamInterface<Refusal> { };

TEST_P(MacOSAppTapFailure, tearsDownWhatWasBuilt)
{
    const Refusal& refusal = GetParam();
    world.failNext(refusal.call, refusal.status);

    const auto tap = create();

    ASSERT_FALSE(tap);
    EXPECT_EQ(tap.error(), refusal.error);
    const Lines all = asked();
    const auto after = std::ranges::find(all, refusal.call) + 1;
    EXPECT_EQ(Lines(after, all.end()), refusal.undone);
}

INSTANTIATE_TEST_SUITE_P(EachStep, MacOSAppTapFailure,
    ::testing::Values(Refusal{"create tap on system", -50, {"Create process tap", -50}, {}},
        Refusal{"get tfmt of tap", OSStatus{kAudioHardwareBadObjectError}, {"Unsupported tap format", 0},
            {"destroy tap"}},
        Refusal{"create aggregate on system", OSStatus{kAudioHardwareIllegalOperationError},
            {"Create aggregate device", OSStatus{kAudioHardwareIllegalOperationError}}, {"destroy tap"}},
        Refusal{"create proc on aggregate", OSStatus{kAudioHardwareBadObjectError},
            {"Create IOProc", OSStatus{kAudioHardwareBadObjectError}}, {"destroy aggregate", "destroy tap"}},
        Refusal{"start aggregate", OSStatus{kAudioHardwareUnspecifiedError},
            {"Start device", OSStatus{kAudioHardwareUnspecifiedError}},
            {"stop aggregate", "destroy proc of aggregate", "destroy aggregate", "destroy tap"}}));

class MacOSTapFormat : public AppTapStage { };

TEST_F(MacOSTapFormat, withOtherSamplesIsRefused)
{
    const auto good = world.tapFormat;
    auto integers = good;
    integers.mFormatFlags = kAudioFormatFlagIsSignedInteger | kAudioFormatFlagIsPacked;
    integers.mBitsPerChannel = 16;
    auto wholeNumbers = good;
    wholeNumbers.mFormatFlags &= ~UInt32{kAudioFormatFlagIsFloat};
    auto doubles = good;
    doubles.mBitsPerChannel = 64;

    for (const auto& format : {integers, wholeNumbers, doubles}) {
        world.tapFormat = format;
        const auto tap = create();

        ASSERT_FALSE(tap);
        EXPECT_EQ(tap.error(), (TapError{"Unsupported tap format", OSStatus{kAudioFormatLinearPCM}}));
    }
}

TEST_F(MacOSTapFormat, thatIsNotLinearIsRefusedWithItsCode)
{
    world.tapFormat.mFormatID = 'aac ';

    const auto tap = create();

    ASSERT_FALSE(tap);
    EXPECT_EQ(tap.error(), (TapError{"Unsupported tap format", OSStatus{'aac '}}));
}

TEST_F(MacOSTapFormat, doesNotMatterOnADeviceThatIsGone)
{
    world.unplug("speakers");

    const auto tap = create();

    ASSERT_FALSE(tap);
    EXPECT_EQ(tap.error().step, TapStep("Start device"));
}

TEST_F(MacOSTapFormat, countsWhenTheAggregateHasNoRate)
{
    world.tapFormat.mSampleRate = 44100;
    world.failNext("get nsrt of aggregate", kAudioHardwareUnknownPropertyError);

    const auto tap = create();

    ASSERT_TRUE(tap);
    EXPECT_EQ((*tap)->sampleRate(), 44100);
}

TEST_F(MacOSAppTapInputs, leavesTheTapOnWhenTheAggregateHasFewerInputsThanItsDevice)
{
    const auto desk = world.plug({.uid = "desk", .inputs = {2, 2, 8}});
    world.inputsOfAggregates = 2;  // A device that hides some while it is in an aggregate.

    const auto tap = createOn("desk", desk);

    ASSERT_TRUE(tap);
    EXPECT_EQ((*tap)->disabledInputs(), 1);
    EXPECT_THAT(onlyProc().inputIsOn, testing::ElementsAre(0, 1));
}

TEST_F(MacOSAppTapInputs, switchesNothingOffWhenTheAggregateHasTheTapAlone)
{
    const auto headset = world.plug({.uid = "headset", .inputs = {1}});
    world.inputsOfAggregates = 1;

    const auto tap = createOn("headset", headset);

    ASSERT_TRUE(tap);
    EXPECT_EQ((*tap)->disabledInputs(), 0);
    EXPECT_THAT(onlyProc().inputIsOn, testing::ElementsAre(1));
}

}  // namespace
}  // namespace fadeloom
