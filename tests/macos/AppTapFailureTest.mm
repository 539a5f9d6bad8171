// SPDX-License-Identifier: MIT
// Each step of building a tap can be refused: what was built is undone, no more and no less, and the step is told.
#include "tests/macos/AppTapStage.h"

namespace fadeloom {
namespace {

struct Refusal {
    std::string call;
    AudioStatus status;
    TapError error;
    std::vector<std::string> undone;
};

class MacOSAppTapFailure : public AppTapStage, public ::testing::WithParamInterface<Refusal> { };

TEST_P(MacOSAppTapFailure, undoesWhatWasBuilt)
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
        Refusal{"get tfmt of tap", statusCode("!obj"), {"Unsupported tap format", 0}, {"destroy tap"}},
        Refusal{"create aggregate on system", statusCode("nope"),
            {"Create aggregate device", statusCode("nope")}, {"destroy tap"}},
        Refusal{"create proc on aggregate", statusCode("!obj"), {"Create IOProc", statusCode("!obj")},
            {"destroy aggregate", "destroy tap"}},
        Refusal{"start aggregate", statusCode("what"), {"Start device", statusCode("what")},
            {"stop aggregate", "destroy proc of aggregate", "destroy aggregate", "destroy tap"}}));

class MacOSTapFormat : public AppTapStage { };

TEST_F(MacOSTapFormat, ofIntegersIsRefused)
{
    world.tapFormat.mFormatFlags = kAudioFormatFlagIsSignedInteger | kAudioFormatFlagIsPacked;
    world.tapFormat.mBitsPerChannel = 16;

    const auto tap = create();

    ASSERT_FALSE(tap);
    EXPECT_EQ(tap.error(), (TapError{"Unsupported tap format", statusCode("lpcm")}));
}

TEST_F(MacOSTapFormat, countsWhenTheAggregateTellsNoRate)
{
    world.tapFormat.mSampleRate = 44100;
    world.failNext("get nsrt of aggregate", kAudioHardwareUnknownPropertyError);

    const auto tap = create();

    ASSERT_TRUE(tap);
    EXPECT_EQ((*tap)->sampleRate(), 44100);
}

}  // namespace
}  // namespace fadeloom
