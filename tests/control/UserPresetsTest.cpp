// SPDX-License-Identifier: MIT
#include "control/UserPresets.h"

#include "control/AppSettings.h"
#include "engine/EQPresets.h"
#include "platform/simulated/SimulatedText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Key;
using testing::Not;

const SimulatedText plainText;

std::vector<std::string> presetNames(const SettingsData& settings)
{
    std::vector<std::string> names;
    for (const auto& preset : settings.userPresets)
        names.push_back(preset.name);
    return names;
}

void setGains(SettingsData& settings, const std::string& bundleID, float gain)
{
    auto app = appSettings(settings, bundleID);
    app.eqGains.fill(gain);
    storeAppSettings(settings, bundleID, app);
}

TEST(UserPresets, applyingOneSwitchesTheEqualizerOn)
{
    SettingsData settings;

    applyPreset(settings, {.name = "Evening", .gains = std::vector<float>(10, 3)}, "player");

    const auto& app = settings.apps.at("player");
    EXPECT_TRUE(app.eqEnabled);
    EXPECT_EQ(app.eqPresetName, "Evening");
    EXPECT_THAT(app.eqGains, Each(3));
}

TEST(UserPresets, aShortPresetLeavesTheOtherBandsFlat)
{
    SettingsData settings;
    setGains(settings, "player", 5);

    applyPreset(settings, {.name = "Short", .gains = {1, 2}}, "player");

    EXPECT_THAT(settings.apps.at("player").eqGains, ElementsAre(1, 2, 0, 0, 0, 0, 0, 0, 0, 0));
}

TEST(UserPresets, builtInNamesAreTakenInAnyLetterCase)
{
    EXPECT_TRUE(isBuiltInPresetName("Rock", plainText));
    EXPECT_TRUE(isBuiltInPresetName("rock", plainText));
    EXPECT_FALSE(isBuiltInPresetName("Rocket", plainText));
}

TEST(UserPresets, savingOneNamesTheAppsCurve)
{
    SettingsData settings;
    setGains(settings, "player", 3);

    saveUserPreset(settings, "Evening", "player", plainText);

    ASSERT_THAT(presetNames(settings), ElementsAre("Evening"));
    EXPECT_EQ(settings.userPresets.front().gains, std::vector<float>(10, 3));
    EXPECT_EQ(settings.apps.at("player").eqPresetName, "Evening");
}

TEST(UserPresets, savingUnderAKnownNameReplacesIt)
{
    SettingsData settings;
    setGains(settings, "player", 3);
    saveUserPreset(settings, "Evening", "player", plainText);
    setGains(settings, "player", 4);

    saveUserPreset(settings, "evening", "player", plainText);

    ASSERT_THAT(presetNames(settings), ElementsAre("evening"));
    EXPECT_EQ(settings.userPresets.front().gains, std::vector<float>(10, 4));
}

TEST(UserPresets, areKeptInOrder)
{
    SettingsData settings;

    for (const auto* const name : {"beta", "Alpha", "Gamma"})
        saveUserPreset(settings, name, "player", plainText);

    EXPECT_THAT(presetNames(settings), ElementsAre("Alpha", "beta", "Gamma"));
}

TEST(UserPresets, deletingOneLeavesItsAppsTheirSound)
{
    SettingsData settings;
    for (const auto* const app : {"player", "radio"}) {
        setGains(settings, app, 3);
        saveUserPreset(settings, "Evening", app, plainText);
    }
    setGains(settings, "other", 1);
    const auto preset = settings.userPresets.front();

    deleteUserPreset(settings, preset);

    EXPECT_THAT(settings.userPresets, IsEmpty());
    for (const auto* const app : {"player", "radio"}) {
        EXPECT_EQ(settings.apps.at(app).eqPresetName, std::nullopt);
        EXPECT_THAT(settings.apps.at(app).eqGains, Each(3));
    }
    EXPECT_EQ(settings.apps.at("other").eqPresetName, "Flat");
}

TEST(UserPresets, deletingOneThatIsNotStoredChangesNothing)
{
    SettingsData settings;
    setGains(settings, "player", 3);
    saveUserPreset(settings, "Evening", "player", plainText);
    const auto before = settings;

    deleteUserPreset(settings, {.name = "evening", .gains = std::vector<float>(10, 3)});
    deleteUserPreset(settings, {.name = "Morning", .gains = {}});

    EXPECT_EQ(settings, before);
}

TEST(UserPresets, anAppWithoutAnyOtherChangeIsRememberedForItsPresetAlone)
{
    SettingsData settings;

    saveUserPreset(settings, "Plain", "player", plainText);
    EXPECT_THAT(settings.apps, Contains(Key("player")));

    applyPreset(settings, EQPresets::flat(), "player");
    auto app = appSettings(settings, "player");
    app.eqEnabled = false;
    storeAppSettings(settings, "player", app);
    EXPECT_THAT(settings.apps, Not(Contains(Key("player"))));
}

}  // namespace
}  // namespace fadeloom
