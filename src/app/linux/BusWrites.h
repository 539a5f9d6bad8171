// SPDX-License-Identifier: MIT
// Writes to properties on the session bus.
#pragma once

#include "control/AudioController.h"

#include <QString>
#include <QVariant>

#include <expected>

namespace fadeloom {

/// Why a request on the bus fails.
struct BusError {
    QString name;
    QString text;

    [[nodiscard]] static BusError invalid(const QString& text);
    [[nodiscard]] static BusError refused(const QString& text);
    [[nodiscard]] static BusError denied(const QString& text);
};
using BusOutcome = std::expected<void, BusError>;

/// Converts a value to the property's signature: any number is accepted for "d". Invalid if impossible.
[[nodiscard]] QVariant busValue(const QVariant& sent, const QString& signature);

/// `value`: of the property's signature.
[[nodiscard]] BusOutcome writeMixerProperty(
    AudioController& controller, const QString& name, const QVariant& value);
[[nodiscard]] BusOutcome writeAppProperty(
    AudioController& controller, const std::string& id, const QString& name, const QVariant& value);
/// By this difference, clamped; returns the new volume.
double changeVolume(AudioController& controller, const std::string& id, double delta);

}  // namespace fadeloom
