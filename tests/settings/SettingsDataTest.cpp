// SPDX-License-Identifier: MIT
#include "settings/SettingsData.h"

#include "engine/EQPresets.h"
#include "platform/simulated/SimulatedCallApps.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(SettingsData, startsAsAUserWhoChangedNothing)
{
    const SettingsData settings;

    EXPECT_THAT(settings.apps, IsEmpty());
    EXPECT_TRUE(settings.focus.enabled);
    EXPECT_EQ(settings.focus.duckLevel, 0.2F);
    EXPECT_THAT(settings.focus.callApps, IsEmpty()) << "they depend on the system";
    EXPECT_THAT(settings.focus.declinedCallApps, IsEmpty());
    EXPECT_EQ(settings.recordingsFolder, std::nullopt);
    EXPECT_THAT(settings.knownAppNames, IsEmpty());
    EXPECT_THAT(settings.userPresets, IsEmpty());
    EXPECT_EQ(settings.appearance.theme, Theme::system);
    EXPECT_TRUE(settings.appearance.glass);
    EXPECT_TRUE(settings.appearance.animations);
    EXPECT_TRUE(settings.appearance.levelMeters);
    EXPECT_EQ(settings.volumeLimit, 1.0F);
    EXPECT_TRUE(settings.eqAutoHeadroom);
}

TEST(AppAudioSettings, startUntouchedAndFlat)
{
    const AppAudioSettings app;

    EXPECT_EQ(app.volume, 1.0F);
    EXPECT_FALSE(app.muted);
    EXPECT_EQ(app.outputUID, std::nullopt);
    EXPECT_FALSE(app.eqEnabled);
    EXPECT_EQ(app.eqPresetName, EQPresets::flat().name);
    EXPECT_THAT(app.eqGains, Each(0.0F));
    EXPECT_EQ(app.eqPreamp, 0.0F);
}

TEST(DefaultCallApps, nameEachKnownAppOnce)
{
    SimulatedCallApps callApps;
    callApps.setFormerDefaults({"old"});

    const auto defaults = defaultCallApps(callApps);

    EXPECT_THAT(defaults.current, ElementsAre("com.example.meet", "com.example.talk"));
    EXPECT_THAT(defaults.former, ElementsAre("old"));
    EXPECT_EQ(defaultSettings(defaults).focus.callApps, defaults.current);
}

TEST(FocusSettings, listAnAppUnderAnyOfItsIdentifiers)
{
    FocusSettings focus{.callApps = {"b", "x"}};
    const std::vector<std::string> app = {"a", "b", "c"};

    EXPECT_TRUE(isCallApp(focus, app));
    addCallApp(focus, app);
    EXPECT_THAT(focus.callApps, ElementsAre("b", "x")) << "it is there";
    removeCallApp(focus, app);
    EXPECT_THAT(focus.callApps, ElementsAre("x"));
    EXPECT_FALSE(isCallApp(focus, app));
}

TEST(FocusSettings, rememberDeclinedAppsUntilTheyAreAdded)
{
    FocusSettings focus;
    const std::vector<std::string> app = {"a", "b"};

    removeCallApp(focus, app);
    removeCallApp(focus, app);
    EXPECT_THAT(focus.declinedCallApps, ElementsAre("a"));
    addCallApp(focus, app);

    EXPECT_THAT(focus.declinedCallApps, IsEmpty());
    EXPECT_THAT(focus.callApps, ElementsAre("a"));
}

TEST(Theme, hasATextForEachCaseAndNoCaseForAnyOtherText)
{
    EXPECT_THAT(allThemes, ElementsAre(Theme::system, Theme::light, Theme::dark));
    for (const auto theme : allThemes)
        EXPECT_EQ(themeOf(themeText(theme)), theme);
    EXPECT_EQ(themeText(Theme::dark), "dark");
    for (const auto* text : {"sepia", "", "Dark", "dark ", "0"})
        EXPECT_EQ(themeOf(text), std::nullopt) << text;
}

}  // namespace
}  // namespace fadeloom
