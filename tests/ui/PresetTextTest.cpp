// SPDX-License-Identifier: MIT
#include "ui/PresetText.h"
#include "engine/EQPresets.h"
#include "ui/PresetEntries.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace fadeloom {
namespace {

SettingsData withPresets(const std::vector<std::string>& names)
{
    SettingsData settings;
    for (const auto& name : names)
        settings.userPresets.push_back({.name = name, .gains = std::vector<float>(10, 1)});
    return settings;
}

TEST(PresetText, aCurveWithoutANameIsCustom)
{
    EXPECT_EQ(presetTitle(std::nullopt), "Custom");
    EXPECT_EQ(presetTitle("Rock"), "Rock");
    EXPECT_EQ(presetTitle("My own"), "My own");
}

TEST(PresetEntries, builtInPresetsAreListedByGroupInOrder)
{
    const auto entries = presetEntries({}, "Rock");

    EXPECT_EQ(entries.size(), EQPresets::all().size() + EQPresets::groups().size());
    EXPECT_TRUE(entries.front().isHeading());
    EXPECT_EQ(entries.at(1).text, "Flat");
}

TEST(PresetEntries, theCurrentPresetAloneIsChecked)
{
    const auto entries = presetEntries(withPresets({"Evening"}), "Evening");

    EXPECT_EQ(std::ranges::count(entries, true, &MenuEntry::isChecked), 1);
    EXPECT_TRUE(entries.back().isChecked);
    EXPECT_EQ(std::ranges::count(presetEntries({}, std::nullopt), true, &MenuEntry::isChecked), 0);
}

TEST(PresetEntries, ownPresetsHaveASectionOnlyWhenThereAreAny)
{
    const auto isOwnHeading = [](const MenuEntry& entry) { return entry.text == "My Presets"; };

    EXPECT_TRUE(std::ranges::none_of(presetEntries({}, "Flat"), isOwnHeading));
    EXPECT_TRUE(std::ranges::any_of(presetEntries(withPresets({"Evening"}), "Flat"), isOwnHeading));
}

TEST(PresetEntries, deletingIsOfferedOnlyWhenThereIsSomethingToDelete)
{
    EXPECT_EQ(presetActionEntries({}).size(), 2U);
    EXPECT_EQ(presetActionEntries(withPresets({"Evening"})).size(), 3U);
    EXPECT_EQ(deletablePresetEntries(withPresets({"Evening"})).front().key, "Evening");
}

TEST(PresetEntries, aKeyLeadsBackToItsPreset)
{
    const auto settings = withPresets({"Evening"});
    const auto entries = presetEntries(settings, "Flat");

    EXPECT_EQ(presetOf(settings, entries.at(2).key)->name, "Bass Boost");
    EXPECT_EQ(presetOf(settings, entries.back().key)->name, "Evening");
    EXPECT_EQ(presetOf({}, entries.back().key), std::nullopt);
}

}  // namespace
}  // namespace fadeloom
