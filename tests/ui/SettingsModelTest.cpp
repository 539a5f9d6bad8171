// SPDX-License-Identifier: MIT
#include "tests/ui/PanelStory.h"
#include "ui/LegibleColor.h"

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

TEST_F(SettingsModelTest, anAppThatListensIsSuggestedFirstWithAnExplanation)
{
    launchPlaying("Accordion");
    world.startUsingMic(launchPlaying("Browser"));
    world.runPosted();

    const auto offered = model().offeredApps();

    ASSERT_EQ(offered.size(), 5);
    EXPECT_EQ(entry(offered, 0).text, "Lower others during calls in Browser");
    EXPECT_EQ(entry(offered, 1).kind, MenuEntry::Kind::separator);
    EXPECT_EQ(entry(offered, 2).text, "Accordion");
    model().addCallApp(entry(offered, 0).key);
    EXPECT_EQ(*state().callApp, "com.example.browser");
    EXPECT_EQ(entry(model().offeredApps(), 0).text, "Accordion");
}

TEST_F(SettingsModelTest, anAppWithSeveralIdentifiersIsOneLine)
{
    auto given = settings();
    given.focus.callApps = {"com.example.meet.sandboxed", "com.example.talk", "com.example.meet"};
    controller->setSettings(given);

    ASSERT_EQ(model().callApps().size(), 2);
    EXPECT_EQ(entry(model().callApps(), 0).text, "Meet");
    model().removeCallApp(entry(model().callApps(), 0).key);

    EXPECT_THAT(settings().focus.callApps, testing::ElementsAre("com.example.talk"));
}

TEST_F(SettingsModelTest, aChosenApplicationIsListedOnce)
{
    const auto count = settings().focus.callApps.size();
    const auto choose = [&](const std::optional<std::string>& bundleID) {
        model().addCallApp("choose");
        world.dialogs().answerApplication(bundleID);
    };

    choose(std::nullopt);
    EXPECT_EQ(settings().focus.callApps.size(), count);
    choose("com.example.chosen");
    choose("com.example.chosen");

    EXPECT_EQ(settings().focus.callApps.size(), count + 1);
    model().removeCallApp("com.example.chosen");
    EXPECT_EQ(settings().focus.callApps.size(), count);
}

TEST_F(SettingsModelTest, theListOfCallAppsCanBeReset)
{
    model().removeCallApp(entry(model().callApps(), 0).key);
    ASSERT_THAT(settings().focus.callApps, testing::ElementsAre("com.example.talk"));

    model().resetCallApps();

    EXPECT_THAT(settings().focus.callApps, testing::ElementsAre("com.example.meet", "com.example.talk"));
    EXPECT_TRUE(settings().focus.declinedCallApps.empty());
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

    EXPECT_EQ(world.userDefaults().stringList("AppleLanguages"), std::vector<std::string>{"pl"});
    EXPECT_EQ(model().language(), "Polski");
    EXPECT_TRUE(model().needsRestart());
    model().chooseLanguage("system");
    EXPECT_FALSE(model().needsRestart());
}

TEST_F(SettingsModelTest, theLanguagesAreTheTranslatedOnes)
{
    const auto languages = model().languages();

    ASSERT_EQ(languages.size(), 3);
    EXPECT_EQ(entry(languages, 0).text, "System");
    EXPECT_TRUE(entry(languages, 0).isChecked);
    EXPECT_EQ(entry(languages, 1).text, "English");
    EXPECT_EQ(entry(languages, 2).text, "Polski");
    EXPECT_EQ(entry(languages, 2).key, "pl");
}

TEST_F(SettingsModelTest, aRestartEndsThisInstanceAfterTheNewOne)
{
    model().restart();
    EXPECT_EQ(world.workspace().newInstances(), 1);
    EXPECT_EQ(around.quits, 0);

    world.workspace().reportStarts();

    EXPECT_EQ(around.quits, 1);
}

TEST_F(SettingsModelTest, anInstalledCallAppHasItsName)
{
    world.workspace().install("com.example.call", "Call");

    model().addCallApp("com.example.call");

    EXPECT_EQ(entry(model().callApps(), model().callApps().size() - 1).text, "Call");
}

TEST_F(SettingsModelTest, theAboutPanelLinksToTheWebPage)
{
    model().openAboutPanel();
    model().openWebPage();

    EXPECT_EQ(world.application().aboutPanel()->linkURL, "https://fadeloom.example/");
    EXPECT_EQ(world.application().aboutPanel()->linkText, "fadeloom.example");
    EXPECT_EQ(model().webPageHost(), "fadeloom.example");
    EXPECT_EQ(model().version(), "1.0");
    EXPECT_THAT(world.workspace().opened(), testing::ElementsAre("https://fadeloom.example/"));
}

TEST_F(SettingsModelTest, theThemeAppliesImmediatelyRegardlessOfTheSystem)
{
    for (const bool isSystemDark : {false, true}) {
        panel->setDesktopAppearance({.isDark = isSystemDark});
        model().setTheme(1);
        EXPECT_FALSE(panel->isDark());
        model().setTheme(2);
        EXPECT_TRUE(panel->isDark());
        model().setTheme(0);
        EXPECT_EQ(panel->isDark(), isSystemDark);
    }
}

TEST_F(SettingsModelTest, desktopPreferencesApplyAlongWithTheSettings)
{
    EXPECT_TRUE(panel->animations());
    EXPECT_EQ(panel->accentFill().alpha(), 0);

    panel->setDesktopAppearance(
        {.reducesMotion = true, .hasHighContrast = true, .textScale = 1.5, .accent = 0xE5A50A});

    EXPECT_FALSE(panel->animations());
    EXPECT_TRUE(panel->hasHighContrast());
    EXPECT_EQ(panel->textScale(), 1.5);
    EXPECT_GE(contrast(panel->accentFill(), Qt::white), 4.5);
    EXPECT_GE(contrast(panel->accentInk(), QColor(0xEF, 0xED, 0xF4)), 4.5);
}

TEST_F(SettingsModelTest, eachSwitchChangesItsSetting)
{
    const auto before = settings();

    model().setLevelMeters(false);
    EXPECT_EQ(settings().appearance, (AppearanceSettings{.levelMeters = false}));
    model().setAnimations(false);
    EXPECT_EQ(settings().appearance, (AppearanceSettings{.animations = false, .levelMeters = false}));
    model().setGlass(false);
    EXPECT_EQ(settings().appearance,
        (AppearanceSettings{.glass = false, .animations = false, .levelMeters = false}));
    model().setAutoHeadroom(false);
    model().setLowersOthers(false);

    auto expected = before;
    expected.appearance = {.glass = false, .animations = false, .levelMeters = false};
    expected.eqAutoHeadroom = false;
    expected.focus.enabled = false;
    EXPECT_EQ(settings(), expected);
}

}  // namespace
}  // namespace fadeloom
