// SPDX-License-Identifier: MIT
// What is written to a property on the session bus.
#pragma once

#include "control/AudioController.h"

#include <QString>
#include <QVariant>

#include <expected>

namespace fadeloom {

/// Why something asked over the bus is not done.
struct BusError {
    QString name;
    QString text;

    [[nodiscard]] static BusError invalid(const QString& text);
    [[nodiscard]] static BusError refused(const QString& text);
    [[nodiscard]] static BusError denied(const QString& text);
};
using BusOutcome = std::expected<void, BusError>;

/// The value that was meant for a property of this signature: numbers of every kind are taken for "d". Invalid if none.
[[nodiscard]] QVariant busValue(const QVariant& sent, const QString& signature);

/// `value`: of the property's signature.
[[nodiscard]] BusOutcome writeMixerProperty(
    AudioController& controller, const QString& name, const QVariant& value);
[[nodiscard]] BusOutcome writeAppProperty(
    AudioController& controller, const std::string& id, const QString& name, const QVariant& value);
/// By so much, within the limits; returns the new volume.
double changeVolume(AudioController& controller, const std::string& id, double delta);

}  // namespace fadeloom
