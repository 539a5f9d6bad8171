// SPDX-License-Identifier: MIT
#include "ui/EQModel.h"

#include "control/AppSettings.h"
#include "control/AudioController.h"
#include "engine/EQPresets.h"
#include "ui/GainText.h"
#include "ui/PresetEntries.h"
#include "ui/PresetText.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace fadeloom {

EQModel::EQModel(AudioController& controller, std::string bundleID, QObject* parent)
    : QObject(parent)
    , controller_(controller)
    , bundleID_(std::move(bundleID))
    , shown_(readState())
{
}

QList<qreal> EQModel::gains() const
{
    return {shown_.gains.begin(), shown_.gains.end()};
}

QString EQModel::preampText() const
{
    return decibelText(preamp());
}

QString EQModel::spokenPreamp() const
{
    return spokenDecibels(preamp());
}

QVariantList EQModel::presetEntries() const
{
    const auto& settings = *controller_.state().settings;
    return variantsOf(fadeloom::presetEntries(settings, appSettings(settings, bundleID_).eqPresetName));
}

QVariantList EQModel::actionEntries() const
{
    return variantsOf(presetActionEntries(*controller_.state().settings));
}

QVariantList EQModel::deleteEntries() const
{
    return variantsOf(deletablePresetEntries(*controller_.state().settings));
}

QString EQModel::bandLabel(int band) const
{
    return fadeloom::bandLabel(band);
}

QString EQModel::bandHelp(int band, qreal gain) const
{
    return fadeloom::bandHelp(band, gain);
}

QString EQModel::spokenBand(int band) const
{
    return fadeloom::spokenBand(band);
}

QString EQModel::spokenGain(qreal gain) const
{
    return spokenDecibels(gain);
}

void EQModel::setEnabled(bool isEnabled)
{
    controller_.editApp(bundleID_, [&](auto& app) { app.eqEnabled = isEnabled; });
}

void EQModel::setGain(int band, qreal gain)
{
    controller_.editApp(bundleID_, [&](auto& app) {
        app.eqGains.at(static_cast<std::size_t>(band)) = wholeGain(gain);
        app.eqPresetName.reset();
        app.eqEnabled = true;
    });
}

void EQModel::setPreamp(qreal preamp)
{
    controller_.editApp(bundleID_, [&](auto& app) { app.eqPreamp = wholeGain(preamp); });
}

void EQModel::applyPreset(const QString& key)
{
    if (const auto preset = presetOf(*controller_.state().settings, key))
        controller_.applyPreset(*preset, bundleID_);
}

void EQModel::resetToFlat()
{
    controller_.applyPreset(EQPresets::flat(), bundleID_);
    setPreamp(0);
}

void EQModel::savePreset(const QString& name)
{
    controller_.saveUserPreset(name.toStdString(), bundleID_);
}

void EQModel::deletePreset(const QString& name)
{
    const auto& presets = controller_.state().settings->userPresets;
    const auto found = std::ranges::find(presets, name.toStdString(), &EQPreset::name);
    if (found != presets.end())
        controller_.deleteUserPreset(EQPreset(*found));
}

void EQModel::refresh()
{
    if (auto now = readState(); now != shown_) {
        shown_ = std::move(now);
        Q_EMIT changed();
    }
    Q_EMIT presetsChanged();
}

EQModel::Shown EQModel::readState() const
{
    const auto app = appSettings(*controller_.state().settings, bundleID_);
    return {.isEnabled = app.eqEnabled,
        .presetTitle = fadeloom::presetTitle(app.eqPresetName),
        .gains = app.eqGains,
        .preamp = app.eqPreamp};
}

}  // namespace fadeloom
