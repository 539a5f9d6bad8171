// SPDX-License-Identifier: MIT
#include "ui/DemoData.h"

#include "engine/EQPresets.h"

#include <algorithm>
#include <string>

namespace fadeloom {
namespace {

constexpr const char* music = "com.apple.Music";
constexpr const char* safari = "com.apple.Safari";
constexpr const char* tv = "com.apple.TV";

AppEntry app(const std::string& bundleID, const std::string& name, const std::string& icon, bool isPlaying)
{
    return {.bundleID = bundleID,
        .name = name,
        .icon = {.themeName = {}, .file = ":/icons/demo-" + icon + ".svg"},
        .isPlaying = isPlaying};
}

SettingsData demoSettings(Theme theme)
{
    SettingsData settings;
    const auto& rock = *std::ranges::find(EQPresets::all(), "Rock", &EQPreset::name);
    auto& musicSettings = settings.apps[music];
    musicSettings = {.volume = 0.85F,
        .outputUID = "demo.homepod",
        .eqEnabled = true,
        .eqPresetName = rock.name,
        .eqPreamp = -2};
    std::ranges::copy(rock.gains, musicSettings.eqGains.begin());
    settings.apps[safari].volume = 0.55F;
    settings.apps[tv].muted = true;
    settings.focus.enabled = true;
    settings.focus.duckLevel = 0.2F;
    settings.appearance.theme = theme;
    return settings;
}

}  // namespace

DemoContents demoContents(Theme theme)
{
    return {.apps = {app(music, "Music", "music", true), app(safari, "Safari", "safari", true),
                app("com.apple.FaceTime", "FaceTime", "facetime", false), app(tv, "TV", "tv", false)},
        .devices = {{.id = 1, .uid = "demo.speakers", .name = "MacBook Pro Speakers"},
            {.id = 2, .uid = "demo.airpods", .name = "AirPods Pro"},
            {.id = 3, .uid = "demo.homepod", .name = "HomePod"}},
        .settings = demoSettings(theme),
        .levels = {{music, 0.82F}, {safari, 0.58F}}};
}

}  // namespace fadeloom
