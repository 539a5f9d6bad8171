// SPDX-License-Identifier: MIT
#include "ui/PresetText.h"

#include "engine/EQPresets.h"

#include <QCoreApplication>

#include <algorithm>

namespace fadeloom {
namespace {

// Presets are defined without translations; this list is for extraction into the tables.
[[maybe_unused]] constexpr const char* translatable[] = {
    QT_TRANSLATE_NOOP("EQPresets", "Basic"),
    QT_TRANSLATE_NOOP("EQPresets", "Genres"),
    QT_TRANSLATE_NOOP("EQPresets", "Moods"),
    QT_TRANSLATE_NOOP("EQPresets", "Use Cases"),
    QT_TRANSLATE_NOOP("EQPresets", "Flat"),
    QT_TRANSLATE_NOOP("EQPresets", "Bass Boost"),
    QT_TRANSLATE_NOOP("EQPresets", "Treble Boost"),
    QT_TRANSLATE_NOOP("EQPresets", "Loudness"),
    QT_TRANSLATE_NOOP("EQPresets", "Acoustic"),
    QT_TRANSLATE_NOOP("EQPresets", "Blues"),
    QT_TRANSLATE_NOOP("EQPresets", "Classical"),
    QT_TRANSLATE_NOOP("EQPresets", "Country"),
    QT_TRANSLATE_NOOP("EQPresets", "Dance"),
    QT_TRANSLATE_NOOP("EQPresets", "Electronic"),
    QT_TRANSLATE_NOOP("EQPresets", "Funk"),
    QT_TRANSLATE_NOOP("EQPresets", "Hip-Hop"),
    QT_TRANSLATE_NOOP("EQPresets", "Jazz"),
    QT_TRANSLATE_NOOP("EQPresets", "Latin"),
    QT_TRANSLATE_NOOP("EQPresets", "Metal"),
    QT_TRANSLATE_NOOP("EQPresets", "Pop"),
    QT_TRANSLATE_NOOP("EQPresets", "Reggae"),
    QT_TRANSLATE_NOOP("EQPresets", "R&B"),
    QT_TRANSLATE_NOOP("EQPresets", "Rock"),
    QT_TRANSLATE_NOOP("EQPresets", "Soul"),
    QT_TRANSLATE_NOOP("EQPresets", "Bright"),
    QT_TRANSLATE_NOOP("EQPresets", "Late Night"),
    QT_TRANSLATE_NOOP("EQPresets", "Lounge"),
    QT_TRANSLATE_NOOP("EQPresets", "Powerful"),
    QT_TRANSLATE_NOOP("EQPresets", "Soft"),
    QT_TRANSLATE_NOOP("EQPresets", "Warm"),
    QT_TRANSLATE_NOOP("EQPresets", "Car Audio"),
    QT_TRANSLATE_NOOP("EQPresets", "Cinema"),
    QT_TRANSLATE_NOOP("EQPresets", "Club"),
    QT_TRANSLATE_NOOP("EQPresets", "Headphones"),
    QT_TRANSLATE_NOOP("EQPresets", "Large Hall"),
    QT_TRANSLATE_NOOP("EQPresets", "Piano"),
    QT_TRANSLATE_NOOP("EQPresets", "Podcast"),
    QT_TRANSLATE_NOOP("EQPresets", "Small Speakers"),
    QT_TRANSLATE_NOOP("EQPresets", "Spoken Word"),
    QT_TRANSLATE_NOOP("EQPresets", "Vocal"),
};

}  // namespace

QString presetTitle(const std::optional<std::string>& name)
{
    if (!name)
        return QCoreApplication::translate("PresetText", "Custom");
    const auto& builtIn = EQPresets::all();
    if (std::ranges::find(builtIn, *name, &EQPreset::name) == builtIn.end())
        return QString::fromStdString(*name);
    return QCoreApplication::translate("EQPresets", name->c_str());
}

QString presetGroupTitle(const std::string& title)
{
    return QCoreApplication::translate("EQPresets", title.c_str());
}

}  // namespace fadeloom
