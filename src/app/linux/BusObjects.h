// SPDX-License-Identifier: MIT
// The current state, as objects on the session bus with their properties.
#pragma once

#include "control/AudioController.h"

#include <QDBusObjectPath>
#include <QList>
#include <QMap>
#include <QString>
#include <QVariantMap>

#include <optional>
#include <string>
#include <vector>

namespace fadeloom {

namespace bus {

inline const QString mixerInterface = QStringLiteral("com.fadeloom.app.Mixer1");
inline const QString appInterface = QStringLiteral("com.fadeloom.app.App1");
inline const QString outputInterface = QStringLiteral("com.fadeloom.app.Output1");
inline const QString root = QStringLiteral("/com/fadeloom/app/Mixer1");
inline const QString apps = root + QStringLiteral("/apps");
inline const QString outputs = root + QStringLiteral("/outputs");

}  // namespace bus

/// Properties by interface name.
using BusObject = QMap<QString, QVariantMap>;
/// By path.
using BusObjects = QMap<QDBusObjectPath, BusObject>;
/// By the path of an app.
using BusLevels = QMap<QDBusObjectPath, double>;

/// Registers the types above with Qt. Call once, before sending them.
void registerBusTypes();

/// Escapes a text as an element of an object path: bytes that are not ASCII letters or digits become "_" and two
/// hexadecimal digits, the empty text "_".
[[nodiscard]] QString busElement(const std::string& text);
[[nodiscard]] QDBusObjectPath busPathOfApp(const std::string& id);
/// "/" for none.
[[nodiscard]] QDBusObjectPath busPathOfOutput(const std::optional<std::string>& uid);

/// The app in the mixer, or the output, with this path.
[[nodiscard]] std::optional<std::string> appAtBusPath(const AudioController& controller, const QString& path);
[[nodiscard]] std::optional<OutputDevice> outputAtBusPath(
    const AudioController& controller, const QString& path);

/// All of them, the mixer itself first.
[[nodiscard]] BusObjects busObjects(const AudioController& controller, const std::string& version);

}  // namespace fadeloom

Q_DECLARE_METATYPE(fadeloom::BusObject)
Q_DECLARE_METATYPE(fadeloom::BusObjects)
Q_DECLARE_METATYPE(fadeloom::BusLevels)
