// SPDX-License-Identifier: MIT
#include "ui/PresetEntries.h"

#include "engine/EQPresets.h"
#include "ui/PresetText.h"

#include <QCoreApplication>

#include <algorithm>
#include <vector>

namespace fadeloom {
namespace {

using Kind = MenuEntry::Kind;

// A user preset may have any name; the prefixes keep the two lists apart.
constexpr QLatin1String builtInPrefix("built-in/");
constexpr QLatin1String userPrefix("user/");

QString words(const char* text)
{
    return QCoreApplication::translate("PresetEntries", text);
}

std::optional<EQPreset> named(const std::vector<EQPreset>& presets, const QString& name)
{
    const auto found = std::ranges::find(presets, name.toStdString(), &EQPreset::name);
    return found == presets.end() ? std::nullopt : std::optional(*found);
}

}  // namespace

MenuEntries presetEntries(const SettingsData& settings, const std::optional<std::string>& currentName)
{
    MenuEntries entries;
    for (const auto& group : EQPresets::groups()) {
        entries.push_back({.kind = Kind::heading, .text = presetGroupTitle(group.title)});
        for (const auto& preset : group.presets)
            entries.push_back({.text = presetTitle(preset.name),
                .key = builtInPrefix + QString::fromStdString(preset.name),
                .isChecked = currentName == preset.name});
    }
    if (settings.userPresets.empty())
        return entries;
    entries.push_back(
        {.kind = Kind::heading, .text = words(QT_TRANSLATE_NOOP("PresetEntries", "My Presets"))});
    for (const auto& preset : settings.userPresets) {
        const auto name = QString::fromStdString(preset.name);
        entries.push_back({.text = name, .key = userPrefix + name, .isChecked = currentName == preset.name});
    }
    return entries;
}

MenuEntries presetActionEntries(const SettingsData& settings)
{
    MenuEntries entries;
    entries.push_back({.text = words(QT_TRANSLATE_NOOP("PresetEntries", "Save Current as Preset…")),
        .key = QStringLiteral("save")});
    if (!settings.userPresets.empty())
        entries.push_back({.kind = Kind::submenu,
            .text = words(QT_TRANSLATE_NOOP("PresetEntries", "Delete Preset")),
            .key = QStringLiteral("delete")});
    entries.push_back(
        {.text = words(QT_TRANSLATE_NOOP("PresetEntries", "Reset to Flat")), .key = QStringLiteral("reset")});
    return entries;
}

MenuEntries deletablePresetEntries(const SettingsData& settings)
{
    MenuEntries entries;
    for (const auto& preset : settings.userPresets) {
        const auto name = QString::fromStdString(preset.name);
        entries.push_back({.text = name, .key = name});
    }
    return entries;
}

std::optional<EQPreset> presetOf(const SettingsData& settings, const QString& key)
{
    if (key.startsWith(builtInPrefix))
        return named(EQPresets::all(), key.mid(builtInPrefix.size()));
    if (key.startsWith(userPrefix))
        return named(settings.userPresets, key.mid(userPrefix.size()));
    return std::nullopt;
}

}  // namespace fadeloom
