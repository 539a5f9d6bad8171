// SPDX-License-Identifier: MIT
// What can be asked over the session bus, as packaging/linux/dbus/com.fadeloom.app.Mixer1.xml has it: the build puts that
// file into the program.
#pragma once

#include <QList>
#include <QMap>
#include <QString>

#include <optional>

namespace fadeloom {

/// The file's text.
extern const char* const busInterfaceText;

struct BusProperty {
    QString signature;
    bool isWritable = false;
    bool isConstant = false;
};

struct BusInterface {
    QString xml;  // The element, for introspection.
    QMap<QString, BusProperty> properties;
    QMap<QString, QString> methods;  // The signatures of what they take.
};

/// By name.
using BusInterfaces = QMap<QString, BusInterface>;

[[nodiscard]] BusInterfaces readBusInterfaces(const QString& text);

}  // namespace fadeloom
