// SPDX-License-Identifier: MIT
// The D-Bus types of a menu, named as in its protocol.
#pragma once

#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariantMap>

namespace fadeloom {

/// An entry with its children: (ia{sv}av).
struct BusMenuLayout {
    int id = 0;
    QVariantMap properties;
    QList<BusMenuLayout> children;
};

/// The properties of an entry: (ia{sv}).
struct BusMenuProperties {
    int id = 0;
    QVariantMap properties;
};

/// An event on an entry: (isvu).
struct BusMenuEvent {
    int id = 0;
    QString event;
    QDBusVariant data;
    uint time = 0;
};

QDBusArgument& operator<<(QDBusArgument& to, const BusMenuLayout& layout);
const QDBusArgument& operator>>(const QDBusArgument& from, BusMenuLayout& layout);
QDBusArgument& operator<<(QDBusArgument& to, const BusMenuProperties& properties);
const QDBusArgument& operator>>(const QDBusArgument& from, BusMenuProperties& properties);
QDBusArgument& operator<<(QDBusArgument& to, const BusMenuEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& from, BusMenuEvent& event);

/// Registers the types with Qt. Call before sending them.
void registerBusMenuTypes();

}  // namespace fadeloom

Q_DECLARE_METATYPE(fadeloom::BusMenuLayout)
Q_DECLARE_METATYPE(fadeloom::BusMenuProperties)
Q_DECLARE_METATYPE(fadeloom::BusMenuEvent)
