// SPDX-License-Identifier: MIT
#include "tests/ui/PanelStory.h"

namespace fadeloom {
namespace {

class EQModelTest : public PanelStory {
protected:
    EQModelTest()
    {
        open();
        launchPlaying("Player");
    }
    EQModel& eq() { return *row(0).eq(); }
    AppAudioSettings app() const { return appSettings(settings(), player); }
};

TEST_F(EQModelTest, aMovedBandTakesEffectAndClearsThePresetName)
{
    eq().setGain(5, 3);

    EXPECT_TRUE(app().eqEnabled);
    EXPECT_EQ(app().eqPresetName, std::nullopt);
    EXPECT_EQ(app().eqGains.at(5), 3);
    EXPECT_EQ(eq().presetTitle(), "Custom");
}

TEST_F(EQModelTest, theSwitchLeavesTheCurveAlone)
{
    eq().applyPreset("built-in/Rock");
    eq().setEnabled(false);
    EXPECT_FALSE(app().eqEnabled);
    EXPECT_EQ(eq().presetTitle(), "Rock");

    eq().setEnabled(true);

    EXPECT_EQ(app().eqPresetName, "Rock");
    EXPECT_EQ(app().eqGains.at(0), 5);
}

TEST_F(EQModelTest, thePreampIsAnIntegerAndAffectsNothingElse)
{
    eq().setPreamp(-3.6);

    EXPECT_EQ(app().eqPreamp, -4);
    EXPECT_FALSE(app().eqEnabled);
    EXPECT_EQ(app().eqPresetName, "Flat");
    EXPECT_EQ(eq().preampText(), "-4 dB");
}

TEST_F(EQModelTest, resettingToFlatAlsoResetsThePreamp)
{
    eq().setGain(0, 6);
    eq().setPreamp(4);

    eq().resetToFlat();

    EXPECT_EQ(app().eqPreamp, 0);
    EXPECT_EQ(eq().presetTitle(), "Flat");
    EXPECT_EQ(app().eqGains, AppAudioSettings().eqGains);
}

TEST_F(EQModelTest, aSavedPresetIsOfferedUntilItIsDeleted)
{
    eq().setGain(0, 6);
    eq().savePreset("  Evening ");
    EXPECT_EQ(eq().presetTitle(), "Evening");
    ASSERT_EQ(eq().deleteEntries().size(), 1);

    eq().deletePreset("Evening");

    EXPECT_TRUE(eq().deleteEntries().empty());
    EXPECT_EQ(eq().presetTitle(), "Custom");
    EXPECT_EQ(app().eqGains.at(0), 6);
}

}  // namespace
}  // namespace fadeloom
