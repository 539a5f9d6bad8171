// SPDX-License-Identifier: MIT
#include "settings/JsonDecoding.h"
#include "settings/JsonNumbers.h"
#include "settings/SettingsJson.h"

#include <algorithm>

namespace fadeloom {

using Json = FloatJson;

namespace {

// The limits of the settings. Linear factors and decibels.
constexpr float maximumVolume = 2;
constexpr float maximumPreampDB = 12;

float limitedDB(float decibels, float maximum)
{
    return std::clamp(decibels, -maximum, maximum);
}

/// Where the parser stopped, for someone who edits the file by hand.
std::string positionOf(std::size_t byte, std::string_view text)
{
    const auto before = text.substr(0, byte == 0 ? 0 : byte - 1);
    const auto line = 1 + std::ranges::count(before, '\n');
    // Also correct on the first line: npos + 1 is 0.
    const auto column = before.size() - (before.rfind('\n') + 1) + 1;
    return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

std::expected<Json, SettingsError> parse(std::string_view text)
{
    try {
        return Json::parse(text);
    } catch (const Json::parse_error& error) {
        return std::unexpected(SettingsError{"not JSON at " + positionOf(error.byte, text)});
    } catch (const Json::exception&) {
        return std::unexpected(SettingsError{"not JSON"});
    }
}

}  // namespace

// Not in the unnamed namespace, where the templates for lists and maps would not find them.

static void decode(const Json& value, AppAudioSettings& app, DecodingProblem& problem)
{
    if (!value.is_object())
        return problem.noteExpected("object", value);
    std::vector<float> gains;
    decodeField(value, "volume", app.volume, problem);
    decodeField(value, "muted", app.muted, problem);
    decodeField<Null::isNoValue>(value, "outputUID", app.outputUID, problem);
    decodeField(value, "eqEnabled", app.eqEnabled, problem);
    decodeField<Null::isNoValue>(value, "eqPresetName", app.eqPresetName, problem);
    decodeField(value, "eqGains", gains, problem);
    decodeField(value, "eqPreamp", app.eqPreamp, problem);

    app.volume = std::clamp(app.volume, 0.0F, maximumVolume);
    app.eqPreamp = limitedDB(app.eqPreamp, maximumPreampDB);
    // A list of another length was made for other bands; how to map its gains is unknown.
    if (gains.size() == app.eqGains.size())
        std::ranges::transform(
            gains, app.eqGains.begin(), [](float gain) { return limitedDB(gain, eqMaximumGainDB); });
}

static void decode(const Json& value, FocusSettings& focus, DecodingProblem& problem)
{
    if (!value.is_object())
        return problem.noteExpected("object", value);
    decodeField(value, "enabled", focus.enabled, problem);
    decodeField(value, "duckLevel", focus.duckLevel, problem);
    decodeField(value, "callApps", focus.callApps, problem);
    decodeField(value, "declinedCallApps", focus.declinedCallApps, problem);
    focus.duckLevel = std::clamp(focus.duckLevel, 0.0F, 1.0F);
}

static void decode(const Json& value, Theme& theme, DecodingProblem& problem)
{
    std::string text;
    decode(value, text, problem);
    if (const auto known = themeOf(text))
        theme = *known;
    else
        problem.note("no such theme");
}

static void decode(const Json& value, AppearanceSettings& appearance, DecodingProblem& problem)
{
    if (!value.is_object())
        return problem.noteExpected("object", value);
    decodeField(value, "theme", appearance.theme, problem);
    decodeField(value, "glass", appearance.glass, problem);
    decodeField(value, "animations", appearance.animations, problem);
    decodeField(value, "levelMeters", appearance.levelMeters, problem);
}

static void decode(const Json& value, EQPreset& preset, DecodingProblem& problem)
{
    if (!value.is_object())
        return problem.noteExpected("object", value);
    // A preset has no defaults: without a name or gains it is invalid.
    std::optional<std::string> name;
    std::optional<std::vector<float>> gains;
    decodeField<Null::isNoValue>(value, "name", name, problem);
    decodeField<Null::isNoValue>(value, "gains", gains, problem);
    if (!name || !gains)
        return problem.note("a preset needs a name and gains");
    preset = {.name = std::move(*name), .gains = std::move(*gains)};
}

static void decode(const Json& value, SettingsData& settings, DecodingProblem& problem)
{
    if (!value.is_object())
        return problem.noteExpected("object", value);
    std::map<std::string, Lenient<AppAudioSettings>> apps;
    decodeField(value, "apps", apps, problem);
    decodeField(value, "focus", settings.focus, problem);
    decodeField<Null::isNoValue>(value, "recordingsFolder", settings.recordingsFolder, problem);
    decodeField(value, "knownAppNames", settings.knownAppNames, problem);
    decodeField(value, "userPresets", settings.userPresets, problem);
    decodeField(value, "appearance", settings.appearance, problem);
    decodeField(value, "volumeLimit", settings.volumeLimit, problem);
    decodeField(value, "eqAutoHeadroom", settings.eqAutoHeadroom, problem);

    std::erase_if(
        settings.userPresets, [](const EQPreset& preset) { return preset.gains.size() != eqBandCount; });
    if (std::ranges::find(volumeLimits, settings.volumeLimit) == volumeLimits.end())
        settings.volumeLimit = SettingsData().volumeLimit;
    for (auto& [bundleID, app] : apps) {
        if (!app.value)
            continue;
        app.value->volume = std::min(app.value->volume, settings.volumeLimit);
        settings.apps.emplace(bundleID, std::move(*app.value));
    }
}

std::expected<SettingsData, SettingsError> decodeSettings(
    std::string_view text, const DefaultCallApps& defaults)
{
    const std::string readable = withFiniteNumbers(text);
    const auto value = parse(readable);
    if (!value)
        return std::unexpected(value.error());

    auto settings = defaultSettings(defaults);
    DecodingProblem problem;
    decode(*value, settings, problem);
    if (problem.isNoted())
        return std::unexpected(SettingsError{problem.text()});
    if (!defaults.former.empty() && settings.focus.callApps == defaults.former)
        settings.focus.callApps = defaults.current;
    return settings;
}

}  // namespace fadeloom
