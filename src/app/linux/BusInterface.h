// SPDX-License-Identifier: MIT
// The D-Bus interface as defined in packaging/linux/dbus/com.fadeloom.app.Mixer1.xml, which the build embeds in the
// program.
#pragma once

#include <QList>
#include <QMap>
#include <QString>

#include <optional>

namespace fadeloom {

/// The file's contents.
extern const char* const busInterfaceText;

struct BusProperty {
    QString signature;
    bool isWritable = false;
    bool isConstant = false;
};

struct BusInterface {
    QString xml;  // The element, for introspection.
    QMap<QString, BusProperty> properties;
    QMap<QString, QString> methods;  // Their input signatures.
};

/// By name.
using BusInterfaces = QMap<QString, BusInterface>;

[[nodiscard]] BusInterfaces readBusInterfaces(const QString& text);

}  // namespace fadeloom
