// SPDX-License-Identifier: MIT
#include "app/linux/BusObjects.h"

#include "control/AppSettings.h"
#include "control/CallDucking.h"
#include "engine/EQPresets.h"

#include <QDBusMetaType>

#include <algorithm>
#include <cmath>

namespace fadeloom {
namespace {

const QDBusObjectPath none(QStringLiteral("/"));

QString text(const std::string& bytes)
{
    return QString::fromStdString(bytes);
}

/// The double with the same short decimal representation as the float.
double number(float value)
{
    return std::round(static_cast<double>(value) * 1e6) / 1e6;
}

QStringList names(const std::vector<EQPreset>& presets)
{
    QStringList list;
    for (const auto& preset : presets)
        list.append(text(preset.name));
    return list;
}

QVariantMap mixer(const AudioController& controller, const std::string& version)
{
    const auto& state = controller.state();
    const auto& settings = *state.settings;
    const auto own = names(settings.userPresets);
    return {
        {QStringLiteral("Version"), text(version)},
        {QStringLiteral("Permission"), QString::fromLatin1(AudioPermission::name(*state.permission))},
        {QStringLiteral("DefaultOutput"), QVariant::fromValue(busPathOfOutput(*state.defaultDeviceUID))},
        {QStringLiteral("VolumeLimit"), number(settings.volumeLimit)},
        {QStringLiteral("AutoHeadroom"), settings.eqAutoHeadroom},
        {QStringLiteral("DuckingEnabled"), settings.focus.enabled},
        {QStringLiteral("DuckLevel"), number(settings.focus.duckLevel)},
        {QStringLiteral("CallApp"),
            QVariant::fromValue(*state.callApp ? busPathOfApp(**state.callApp) : none)},
        {QStringLiteral("Presets"), names(EQPresets::all()) + own},
        {QStringLiteral("UserPresets"), own},
    };
}

QVariantMap app(const AudioController& controller, const AppEntry& entry)
{
    const auto& state = controller.state();
    const auto settings = appSettings(*state.settings, entry.bundleID);
    QList<double> gains;
    for (const float gain : settings.eqGains)
        gains.append(number(gain));
    return {
        {QStringLiteral("Id"), text(entry.bundleID)},
        {QStringLiteral("Name"), text(entry.name)},
        {QStringLiteral("IconName"), text(entry.icon.themeName)},
        {QStringLiteral("Playing"), entry.isPlaying},
        {QStringLiteral("UsesMicrophone"), entry.isUsingMic},
        {QStringLiteral("Volume"), number(settings.volume)},
        {QStringLiteral("Muted"), settings.muted},
        {QStringLiteral("Ducked"), duckFactor(state.settings->focus, *state.callApp, entry.callIDs) < 1},
        {QStringLiteral("Output"),
            QVariant::fromValue(busPathOfOutput(controller.outputUID(entry.bundleID)))},
        {QStringLiteral("OutputUid"), text(settings.outputUID.value_or(""))},
        {QStringLiteral("OutputMissing"), controller.isOutputMissing(entry.bundleID)},
        {QStringLiteral("EqualizerEnabled"), settings.eqEnabled},
        {QStringLiteral("EqualizerGains"), QVariant::fromValue(gains)},
        {QStringLiteral("EqualizerPreamp"), number(settings.eqPreamp)},
        {QStringLiteral("Preset"), text(settings.eqPresetName.value_or(""))},
        {QStringLiteral("Recording"), state.recordings->contains(entry.bundleID)},
    };
}

}  // namespace

void registerBusTypes()
{
    qDBusRegisterMetaType<QList<double>>();
    qDBusRegisterMetaType<BusObject>();
    qDBusRegisterMetaType<BusObjects>();
    qDBusRegisterMetaType<BusLevels>();
}

QString busElement(const std::string& text)
{
    QString element;
    for (const char byte : text) {
        const bool isPlain =
            (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9');
        if (isPlain)
            element += QLatin1Char(byte);
        else
            element += QStringLiteral("_%1").arg(static_cast<unsigned char>(byte), 2, 16, QLatin1Char('0'));
    }
    return element.isEmpty() ? QStringLiteral("_") : element;
}

QDBusObjectPath busPathOfApp(const std::string& id)
{
    return QDBusObjectPath(bus::apps + QLatin1Char('/') + busElement(id));
}

QDBusObjectPath busPathOfOutput(const std::optional<std::string>& uid)
{
    return uid ? QDBusObjectPath(bus::outputs + QLatin1Char('/') + busElement(*uid)) : none;
}

std::optional<std::string> appAtBusPath(const AudioController& controller, const QString& path)
{
    for (const auto& entry : *controller.state().apps) {
        if (busPathOfApp(entry.bundleID).path() == path)
            return entry.bundleID;
    }
    return std::nullopt;
}

std::optional<OutputDevice> outputAtBusPath(const AudioController& controller, const QString& path)
{
    for (const auto& device : *controller.state().devices) {
        if (busPathOfOutput(device.uid).path() == path)
            return device;
    }
    return std::nullopt;
}

BusObjects busObjects(const AudioController& controller, const std::string& version)
{
    const auto& state = controller.state();
    BusObjects objects;
    objects[QDBusObjectPath(bus::root)] = {{bus::mixerInterface, mixer(controller, version)}};
    for (const auto& entry : *state.apps)
        objects[busPathOfApp(entry.bundleID)] = {{bus::appInterface, app(controller, entry)}};
    for (const auto& device : *state.devices) {
        objects[busPathOfOutput(device.uid)] = {{bus::outputInterface,
            {
                {QStringLiteral("Uid"), text(device.uid)},
                {QStringLiteral("Name"), text(device.name)},
                {QStringLiteral("IsDefault"), *state.defaultDeviceUID == device.uid},
            }}};
    }
    return objects;
}

}  // namespace fadeloom
