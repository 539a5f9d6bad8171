// SPDX-License-Identifier: MIT
#include "ui/DemoData.h"

#include "engine/EQPresets.h"
#include "platform/FirstCallApps.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

namespace fadeloom {
namespace {

struct DemoApp {
    const char* bundleID;
    const char* name;
};

struct DemoNames {
    // A music player, a browser, a call app and a video player.
    std::array<DemoApp, 4> apps;
    std::array<const char*, 3> devices;
    std::vector<CallApp> callApps;
};

DemoNames namesOf(DemoHome home)
{
    if (home == DemoHome::ofLinux)
        return {
            .apps = {{{"org.gnome.Rhythmbox3", "Rhythmbox"}, {"org.gnome.Epiphany", "Web"},
                {"us.zoom.Zoom", "Zoom"}, {"org.gnome.Totem", "Videos"}}},
            .devices = {"Built-in Audio", "Headphones", "Living Room"},
            .callApps = {{"Zoom", {"us.zoom.Zoom"}}, {"Discord", {"com.discordapp.Discord"}},
                {"Slack", {"com.slack.Slack"}}, {"Signal", {"org.signal.Signal"}}},
        };
    return {
        .apps = {{{"com.apple.Music", "Music"}, {"com.apple.Safari", "Safari"},
            {"com.apple.FaceTime", "FaceTime"}, {"com.apple.TV", "TV"}}},
        .devices = {"MacBook Pro Speakers", "AirPods Pro", "HomePod"},
        .callApps = firstCallApps(),
    };
}

enum class Playing { no, yes };

AppEntry app(const DemoApp& names, const std::string& icon, Playing playing)
{
    return {.bundleID = names.bundleID,
        .name = names.name,
        .icon = {.themeName = {}, .file = ":/icons/demo-" + icon + ".svg"},
        .isPlaying = playing == Playing::yes,
        .callIDs = {names.bundleID}};
}

SettingsData demoSettings(Theme theme, const DemoNames& names)
{
    SettingsData settings;
    const auto& rock = *std::ranges::find(EQPresets::all(), "Rock", &EQPreset::name);
    auto& music = settings.apps[names.apps[0].bundleID];
    music = {
        .volume = 0.85F, .outputUID = "demo.2", .eqEnabled = true, .eqPresetName = rock.name, .eqPreamp = -2};
    std::ranges::copy(rock.gains, music.eqGains.begin());
    settings.apps[names.apps[1].bundleID].volume = 0.55F;
    settings.apps[names.apps[3].bundleID].muted = true;
    settings.focus.enabled = true;
    settings.focus.duckLevel = 0.2F;
    for (const auto& callApp : names.callApps) {
        settings.focus.callApps.push_back(callApp.bundleIDs.front());
        settings.knownAppNames.emplace(callApp.bundleIDs.front(), callApp.name);
    }
    settings.appearance.theme = theme;
    return settings;
}

}  // namespace

DemoContents demoContents(Theme theme, DemoHome home)
{
    const auto names = namesOf(home);
    std::vector<OutputDevice> devices;
    for (const auto* const name : names.devices)
        devices.push_back({.id = static_cast<OutputDeviceID>(devices.size() + 1),
            .uid = "demo." + std::to_string(devices.size()),
            .name = name});
    return {.apps = {app(names.apps[0], "music", Playing::yes), app(names.apps[1], "safari", Playing::yes),
                app(names.apps[2], "facetime", Playing::no), app(names.apps[3], "tv", Playing::no)},
        .devices = std::move(devices),
        .settings = demoSettings(theme, names),
        .levels = {{names.apps[0].bundleID, 0.82F}, {names.apps[1].bundleID, 0.58F}}};
}

}  // namespace fadeloom
