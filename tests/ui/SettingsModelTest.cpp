// SPDX-License-Identifier: MIT
#include "tests/ui/PanelStory.h"

namespace fadeloom {
namespace {

class SettingsModelTest : public PanelStory {
protected:
    SettingsModelTest() { open(); }
    SettingsModel& model() { return *panel->settings(); }
};

TEST_F(SettingsModelTest, theDuckLevelGoesInSteps)
{
    model().setDuckLevel(0.333);
    EXPECT_EQ(model().duckPercent(), "35%");
    model().setDuckLevel(0);
    EXPECT_EQ(model().duckPercent(), "0%");
}

TEST_F(SettingsModelTest, anAddedAppIsOfferedNoMore)
{
    launchPlaying("Player");
    ASSERT_EQ(model().offeredApps().size(), 3);
    EXPECT_EQ(entry(model().offeredApps(), 0).text, "Player");

    model().addCallApp("com.example.player");

    ASSERT_EQ(model().offeredApps().size(), 1);
    EXPECT_EQ(settings().focus.callApps.back(), player);
}

TEST_F(SettingsModelTest, aChosenApplicationIsListedOnce)
{
    const auto count = settings().focus.callApps.size();

    model().addCallApp("choose");
    model().addCallApp("choose");

    EXPECT_EQ(settings().focus.callApps.size(), count + 1);
    model().removeCallApp("com.example.chosen");
    EXPECT_EQ(settings().focus.callApps.size(), count);
}

TEST_F(SettingsModelTest, theListOfCallAppsCanBeReset)
{
    model().removeCallApp(entry(model().callApps(), 0).key);
    ASSERT_NE(settings().focus.callApps, FocusSettings::defaultCallApps());

    model().resetCallApps();

    EXPECT_EQ(settings().focus.callApps, FocusSettings::defaultCallApps());
}

TEST_F(SettingsModelTest, thereAreFourVolumeLimits)
{
    ASSERT_EQ(model().volumeLimits().size(), 4);
    EXPECT_EQ(model().volumeLimit(), "100% (no boost)");
    EXPECT_FALSE(model().isBoostAllowed());

    model().chooseVolumeLimit("2");

    EXPECT_EQ(settings().volumeLimit, 1.5F);
    EXPECT_EQ(model().volumeLimit(), "150%");
    EXPECT_TRUE(model().isBoostAllowed());
}

TEST_F(SettingsModelTest, resettingAppsLeavesTheRest)
{
    change(player, [](auto& app) { app.muted = true; });
    model().setGlass(false);
    model().setDuckLevel(0.4);

    model().resetApps();

    EXPECT_TRUE(settings().apps.empty());
    EXPECT_FALSE(settings().appearance.glass);
    EXPECT_EQ(settings().focus.duckLevel, 0.4F);
}

TEST_F(SettingsModelTest, aLanguageIsStoredAtOnceAndAppliedByARestart)
{
    EXPECT_FALSE(model().needsRestart());

    model().chooseLanguage("pl");

    EXPECT_EQ(host.languageCode, "pl");
    EXPECT_EQ(model().language(), "Polski");
    EXPECT_TRUE(model().needsRestart());
    model().chooseLanguage("system");
    EXPECT_FALSE(model().needsRestart());
}

TEST_F(SettingsModelTest, theThemeAppliesAtOnce)
{
    model().setTheme(1);
    EXPECT_FALSE(panel->isDark());
    model().setTheme(2);
    EXPECT_TRUE(panel->isDark());
    model().setTheme(0);
    panel->setSystemIsDark(false);
    EXPECT_FALSE(panel->isDark());
}

}  // namespace
}  // namespace fadeloom
