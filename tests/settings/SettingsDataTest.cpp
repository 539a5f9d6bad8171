// SPDX-License-Identifier: MIT
#include "settings/SettingsData.h"

#include "engine/EQPresets.h"

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
    EXPECT_EQ(settings.focus.callApps, FocusSettings::defaultCallApps());
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

TEST(FocusSettings, knowElevenCallAppsInTheirOrder)
{
    EXPECT_THAT(FocusSettings::defaultCallApps(),
        ElementsAre("us.zoom.xos", "com.microsoft.teams2", "com.microsoft.teams", "com.apple.FaceTime",
            "com.hnc.Discord", "com.tinyspeck.slackmacgap", "Cisco-Systems.Spark", "com.skype.skype",
            "net.whatsapp.WhatsApp", "org.whispersystems.signal-desktop",
            "com.google.Chrome.app.kjgfgldnnfoeklkmfkjfagphfepbbdan"));
}

TEST(FocusSettings, knowTheNamesOfTheirCallApps)
{
    const auto& names = FocusSettings::knownNames();

    EXPECT_EQ(names.size(), 11U);
    for (const auto& bundleID : FocusSettings::defaultCallApps())
        EXPECT_TRUE(names.contains(bundleID)) << bundleID;
    EXPECT_EQ(names.at("com.microsoft.teams"), "Microsoft Teams (classic)");
    EXPECT_EQ(names.at("com.google.Chrome.app.kjgfgldnnfoeklkmfkjfagphfepbbdan"), "Google Meet");
    EXPECT_EQ(&names, &FocusSettings::knownNames()) << "made once";
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
