// SPDX-License-Identifier: MIT
#include "app/linux/BusWrites.h"

#include "app/linux/BusObjects.h"
#include "control/AppSettings.h"
#include "engine/EQPresets.h"

#include <QDBusArgument>
#include <QDBusMetaType>

#include <algorithm>
#include <cmath>

namespace fadeloom {
namespace {

constexpr double mostDecibels = 12;

bool isWithin(double value, double most)
{
    return value >= -most && value <= most;
}

BusOutcome setPreset(AudioController& controller, const std::string& id, const std::string& name)
{
    for (const auto* const presets : {&EQPresets::all(), &controller.state().settings->userPresets}) {
        const auto found = std::ranges::find(*presets, name, &EQPreset::name);
        if (found != presets->end()) {
            // Copied, because the list may change with the settings.
            controller.applyPreset(EQPreset(*found), id);
            return {};
        }
    }
    return std::unexpected(BusError::invalid(QStringLiteral("There is no such preset")));
}

BusOutcome setGains(AppAudioSettings& app, const QList<double>& gains)
{
    const bool isGood = gains.size() == static_cast<qsizetype>(app.eqGains.size())
        && std::ranges::all_of(gains, [](double gain) { return isWithin(gain, mostDecibels); });
    if (!isGood)
        return std::unexpected(BusError::invalid(QStringLiteral("Ten gains from -12 to 12 are meant")));
    std::ranges::transform(gains, app.eqGains.begin(), [](double gain) { return static_cast<float>(gain); });
    app.eqPresetName.reset();
    return {};
}

}  // namespace

BusError BusError::invalid(const QString& text)
{
    return {QStringLiteral("org.freedesktop.DBus.Error.InvalidArgs"), text};
}

BusError BusError::refused(const QString& text)
{
    return {QStringLiteral("com.fadeloom.app.Error.Refused"), text};
}

BusError BusError::denied(const QString& text)
{
    return {QStringLiteral("com.fadeloom.app.Error.Denied"), text};
}

QVariant busValue(const QVariant& sent, const QString& signature)
{
    const auto type = sent.metaType().id();
    if (signature == QLatin1String("d")) {
        const bool isNumber = type == QMetaType::Double || type == QMetaType::Int || type == QMetaType::UInt
            || type == QMetaType::Short || type == QMetaType::UShort || type == QMetaType::UChar
            || type == QMetaType::LongLong || type == QMetaType::ULongLong;
        return isNumber && std::isfinite(sent.toDouble()) ? QVariant(sent.toDouble()) : QVariant();
    }
    if (type == qMetaTypeId<QDBusArgument>()) {
        const auto argument = sent.value<QDBusArgument>();
        return signature == QLatin1String("ad") && argument.currentSignature() == signature
            ? QVariant::fromValue(qdbus_cast<QList<double>>(argument))
            : QVariant();
    }
    return QString::fromLatin1(QDBusMetaType::typeToSignature(sent.metaType())) == signature ? sent
                                                                                             : QVariant();
}

BusOutcome writeMixerProperty(AudioController& controller, const QString& name, const QVariant& value)
{
    if (name == QLatin1String("DefaultOutput")) {
        const auto device = outputAtBusPath(controller, value.value<QDBusObjectPath>().path());
        if (!device)
            return std::unexpected(BusError::invalid(QStringLiteral("There is no such output")));
        if (!controller.setSystemOutput(*device))
            return std::unexpected(BusError::refused(QStringLiteral("The system did not accept it")));
        return {};
    }
    auto settings = *controller.state().settings;
    if (name == QLatin1String("AutoHeadroom")) {
        settings.eqAutoHeadroom = value.toBool();
    } else if (name == QLatin1String("DuckingEnabled")) {
        settings.focus.enabled = value.toBool();
    } else if (name == QLatin1String("VolumeLimit")) {
        settings.volumeLimit = value.toFloat();
        if (std::ranges::find(volumeLimits, settings.volumeLimit) == volumeLimits.end())
            return std::unexpected(BusError::invalid(QStringLiteral("The limit is 1, 1.25, 1.5 or 2")));
    } else if (name == QLatin1String("DuckLevel")) {
        settings.focus.duckLevel = value.toFloat();
        if (settings.focus.duckLevel < 0 || settings.focus.duckLevel > 1)
            return std::unexpected(BusError::invalid(QStringLiteral("The level is a number from 0 to 1")));
    }
    controller.setSettings(std::move(settings));
    return {};
}

BusOutcome writeAppProperty(
    AudioController& controller, const std::string& id, const QString& name, const QVariant& value)
{
    if (name == QLatin1String("Preset"))
        return setPreset(controller, id, value.toString().toStdString());
    auto app = appSettings(*controller.state().settings, id);
    if (name == QLatin1String("Volume")) {
        const double limit = controller.state().settings->volumeLimit;
        app.volume = static_cast<float>(std::clamp(value.toDouble(), 0.0, limit));
    } else if (name == QLatin1String("Muted")) {
        app.muted = value.toBool();
    } else if (name == QLatin1String("OutputUid")) {
        const auto uid = value.toString().toStdString();
        app.outputUID = uid.empty() ? std::nullopt : std::optional(uid);
    } else if (name == QLatin1String("EqualizerEnabled")) {
        app.eqEnabled = value.toBool();
    } else if (name == QLatin1String("EqualizerPreamp")) {
        if (!isWithin(value.toDouble(), mostDecibels))
            return std::unexpected(
                BusError::invalid(QStringLiteral("The preamp is a number from -12 to 12")));
        app.eqPreamp = value.toFloat();
    } else if (name == QLatin1String("EqualizerGains")) {
        if (const auto set = setGains(app, value.value<QList<double>>()); !set)
            return set;
    }
    controller.editApp(id, [&](AppAudioSettings& settings) { settings = app; });
    return {};
}

double changeVolume(AudioController& controller, const std::string& id, double delta)
{
    const auto& settings = *controller.state().settings;
    const double limit = settings.volumeLimit;
    const double wanted =
        std::round((static_cast<double>(appSettings(settings, id).volume) + delta) * 1000) / 1000;
    const double volume = std::clamp(wanted, 0.0, limit);
    controller.editApp(id, [&](AppAudioSettings& app) { app.volume = static_cast<float>(volume); });
    return volume;
}

}  // namespace fadeloom
