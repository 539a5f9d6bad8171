// SPDX-License-Identifier: MIT
// Applying, saving and deleting presets.
#include "tests/control/ControllerStory.h"

namespace fadeloom {
namespace {

using testing::Each;
using testing::IsEmpty;
using testing::SizeIs;

class PresetStory : public ControllerStory {
protected:
    PresetStory()
    {
        start();
        launchPlaying("Player");
        world.advance(1s);
    }

    const std::string player = "com.example.player";
};

TEST_F(PresetStory, anAppliedPresetIsHeardAndSaved)
{
    controller->applyPreset({.name = "Evening", .gains = std::vector<float>(10, 6)}, player);

    EXPECT_TRUE(valuesOf(player).eqEnabled);
    world.advance(1s);
    EXPECT_TRUE(saved().apps.at(player).eqEnabled);
    EXPECT_EQ(saved().apps.at(player).eqPresetName, "Evening");
}

TEST_F(PresetStory, aPresetIsKeptUnderItsTrimmedName)
{
    controller->saveUserPreset("  Evening  ", player);

    ASSERT_THAT(settings().userPresets, SizeIs(1));
    EXPECT_EQ(settings().userPresets.front().name, "Evening");
    world.advance(1s);
    EXPECT_THAT(saved().userPresets, SizeIs(1));
}

TEST_F(PresetStory, aBlankNameDoesNothing)
{
    controller->saveUserPreset(" \t\n", player);
    controller->saveUserPreset("", player);

    EXPECT_THAT(settings().userPresets, IsEmpty());
    EXPECT_EQ(message(), "");
    EXPECT_FALSE(isSaveWaiting());
}

TEST_F(PresetStory, aBuiltInNameIsRefused)
{
    controller->saveUserPreset(" rock ", player);

    EXPECT_EQ(message(), "“rock” is a built-in preset name. Choose another name.");
    EXPECT_THAT(settings().userPresets, IsEmpty());
    EXPECT_FALSE(isSaveWaiting());
}

TEST_F(PresetStory, deletingAPresetChangesNoSound)
{
    change(player, [](auto& app) {
        app.eqGains.fill(3);
        app.eqEnabled = true;
    });
    controller->saveUserPreset("Evening", player);
    const auto before = valuesOf(player);

    controller->deleteUserPreset(EQPreset(settings().userPresets.front()));

    EXPECT_EQ(valuesOf(player).preamp, before.preamp);
    EXPECT_TRUE(valuesOf(player).eqEnabled);
    EXPECT_EQ(settings().apps.at(player).eqPresetName, std::nullopt);
    EXPECT_THAT(settings().apps.at(player).eqGains, Each(3));
}

}  // namespace
}  // namespace fadeloom
