// SPDX-License-Identifier: MIT
// The effects of settings changes.
#include "tests/control/ControllerStory.h"

#include "engine/EqualizerDesign.h"
#include "tests/support/OrdinaryUser.h"

namespace fadeloom {
namespace {

constexpr std::array<float, 10> bassBoost = {6, 6, 4, 0, 0, 0, 0, 0, 0, 0};

class SettingsStory : public ControllerStory {
protected:
    void startWithPlayer()
    {
        launchPlaying("Player");
        start();
        world.advance(1s);
        std::filesystem::remove(settingsFile());  // It contains the player's name already.
    }

    const std::string player = "com.example.player";
};

TEST_F(SettingsStory, aChangedVolumeTakesEffect)
{
    startWithPlayer();

    change(player, [](auto& app) { app.volume = 0.5F; });

    EXPECT_EQ(valuesOf(player).volume, 0.5F);
    EXPECT_NEAR(heardAt("speakers"), source * 0.5F, tolerance);
}

TEST_F(SettingsStory, aMutedAppIsSilentUntilItIsUnmuted)
{
    startWithPlayer();

    change(player, [](auto& app) { app.muted = true; });
    EXPECT_NEAR(heardAt("speakers"), 0, tolerance);

    change(player, [](auto& app) { app.muted = false; });
    EXPECT_NEAR(heardAt("speakers"), source, tolerance);
}

TEST_F(SettingsStory, anEqualRecordChangesAndWritesNothing)
{
    startWithPlayer();
    const auto version = valuesOf(player).eqVersion;

    controller->setSettings(settings());
    world.advance(1s);

    EXPECT_EQ(valuesOf(player).eqVersion, version);
    EXPECT_FALSE(std::filesystem::exists(settingsFile()));
}

TEST_F(SettingsStory, aLoweredLimitLowersTheAppsAboveItPermanently)
{
    startWithPlayer();
    setVolumeLimit(2);
    change(player, [](auto& app) { app.volume = 1.6F; });
    change("com.example.quiet", [](auto& app) { app.volume = 0.5F; });
    ASSERT_EQ(valuesOf(player).volume, 1.6F);

    setVolumeLimit(1);

    EXPECT_EQ(settings().apps.at(player).volume, 1.0F);
    EXPECT_EQ(settings().apps.at("com.example.quiet").volume, 0.5F);
    EXPECT_EQ(valuesOf(player).volume, 1.0F);
    EXPECT_FALSE(std::filesystem::exists(settingsFile()));
    world.advance(600ms);
    EXPECT_EQ(saved(), settings());

    setVolumeLimit(2);
    EXPECT_EQ(settings().apps.at(player).volume, 1.0F);
    EXPECT_EQ(valuesOf(player).volume, 1.0F);
}

TEST_F(SettingsStory, anAppStoredAboveTheLimitPlaysAtTheLimit)
{
    startWithPlayer();
    setVolumeLimit(1.25F);

    change(player, [](auto& app) { app.volume = 1.5F; });

    EXPECT_EQ(valuesOf(player).volume, 1.25F);
    EXPECT_EQ(settings().apps.at(player).volume, 1.5F);
    EXPECT_NEAR(heardAt("speakers"), source * 1.25F, tolerance);
}

TEST_F(SettingsStory, aRaisedLimitLetsAnAppStoredAboveItPlayLouder)
{
    startWithPlayer();
    setVolumeLimit(1.25F);
    change(player, [](auto& app) { app.volume = 1.5F; });

    setVolumeLimit(2);

    EXPECT_EQ(valuesOf(player).volume, 1.5F);
}

TEST_F(SettingsStory, aChangeOfAnAppWithoutATapIsSavedAndNotPushed)
{
    start();

    change("com.example.absent", [](auto& app) { app.volume = 0.5F; });
    world.advance(600ms);

    EXPECT_EQ(controller->parametersOf("com.example.absent"), nullptr);
    EXPECT_EQ(saved().apps.at("com.example.absent").volume, 0.5F);
}

TEST_F(SettingsStory, aChangeOfOneAppLeavesTheOthersAlone)
{
    startWithPlayer();
    launchPlaying("Chat");
    const auto version = valuesOf("com.example.chat").eqVersion;

    change(player, [](auto& app) { app.volume = 0.5F; });

    EXPECT_EQ(valuesOf("com.example.chat").eqVersion, version);
}

TEST_F(SettingsStory, changesInQuickSuccessionAreWrittenOnce)
{
    startWithPlayer();

    setVolumeLimit(2);
    world.advance(300ms);
    change(player, [](auto& app) { app.volume = 0.5F; });
    world.advance(300ms);
    EXPECT_FALSE(std::filesystem::exists(settingsFile()));
    world.advance(300ms);

    EXPECT_EQ(saved().volumeLimit, 2);
    EXPECT_EQ(saved().apps.at(player).volume, 0.5F);
    EXPECT_FALSE(isSaveWaiting());
}

TEST_F(SettingsStory, aFailedSaveIsReportedAndTheNextChangeRetries)
{
    startWithPlayer();
    std::filesystem::create_directories(settingsFile());  // A folder in place of the file.

    setVolumeLimit(2);
    world.advance(600ms);
    EXPECT_EQ(
        message(), "Could not save settings: Cannot read " + settingsFile().string() + ": Is a directory");
    EXPECT_EQ(settings().volumeLimit, 2);

    std::filesystem::remove(settingsFile());
    controller->dismissError();
    setVolumeLimit(1.5F);
    world.advance(600ms);
    EXPECT_EQ(*state().error, std::nullopt);
    EXPECT_EQ(saved().volumeLimit, 1.5F);
}

TEST_F(SettingsStory, unreadableSettingsAreReportedAndNeverReplaced)
{
    SettingsData earlier;
    earlier.apps[player].volume = 0.25F;
    givenSettings(earlier);
    std::filesystem::permissions(settingsFile(), {});
    {
        const OrdinaryUser user(folder.path());
        start();
    }
    std::filesystem::permissions(settingsFile(), std::filesystem::perms::owner_all);
    launchPlaying("Player");
    EXPECT_EQ(message(),
        "Settings could not be read, and changes will not be saved: Cannot read " + settingsFile().string()
            + ": Permission denied");

    change(player, [](auto& app) { app.volume = 0.5F; });
    world.advance(1s);

    EXPECT_EQ(valuesOf(player).volume, 0.5F);
    EXPECT_EQ(saved().apps.at(player).volume, 0.25F);
    EXPECT_FALSE(isSaveWaiting());
}

TEST_F(SettingsStory, theEqualizerIsPreparedWhileItIsOff)
{
    startWithPlayer();

    change(player, [](auto& app) { app.eqGains = bassBoost; });

    EXPECT_FALSE(valuesOf(player).eqEnabled);
    EXPECT_EQ(controller->parametersOf(player)->coefficients, eqCoefficients(bassBoost, 48000));
}

TEST_F(SettingsStory, theEqualizerFitsTheRateOfTheOutput)
{
    startWithPlayer();
    change(player, [](auto& app) { app.eqGains = bassBoost; });

    world.changeRate("speakers", 44100);
    world.advance(5s);

    EXPECT_EQ(controller->parametersOf(player)->coefficients, eqCoefficients(bassBoost, 44100));
}

TEST_F(SettingsStory, theHeadroomIsTheSameOnEveryOutput)
{
    startWithPlayer();
    change(player, [](auto& app) { app.eqGains = bassBoost; });
    const auto preamp = valuesOf(player).preamp;

    world.changeRate("speakers", 192000);
    world.advance(5s);

    ASSERT_EQ(tapOf(player)->sampleRate(), 192000);
    EXPECT_EQ(valuesOf(player).preamp, preamp);
    EXPECT_LT(preamp, 1);
}

TEST_F(SettingsStory, switchingTheHeadroomOffAffectsEveryApp)
{
    startWithPlayer();
    change(player, [](auto& app) { app.eqGains = bassBoost; });

    auto changed = settings();
    changed.eqAutoHeadroom = false;
    controller->setSettings(changed);

    EXPECT_EQ(valuesOf(player).preamp, 1);
}

TEST_F(SettingsStory, observersSeeTheNewRecord)
{
    startWithPlayer();
    std::vector<float> limits;
    const auto watch = state().settings.whenAssigned([&] { limits.push_back(settings().volumeLimit); });

    setVolumeLimit(1.5F);

    EXPECT_EQ(limits, std::vector{1.5F});
}

}  // namespace
}  // namespace fadeloom
