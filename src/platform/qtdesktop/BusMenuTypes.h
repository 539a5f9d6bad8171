// SPDX-License-Identifier: MIT
// What a menu over the message bus is made of, in the words of its protocol.
#pragma once

#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariantMap>

namespace fadeloom {

/// An entry, with those below it: (ia{sv}av).
struct BusMenuLayout {
    int id = 0;
    QVariantMap properties;
    QList<BusMenuLayout> children;
};

/// What an entry shows: (ia{sv}).
struct BusMenuProperties {
    int id = 0;
    QVariantMap properties;
};

/// What happened to an entry: (isvu).
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

/// Before any of them goes over the bus.
void registerBusMenuTypes();

}  // namespace fadeloom

Q_DECLARE_METATYPE(fadeloom::BusMenuLayout)
Q_DECLARE_METATYPE(fadeloom::BusMenuProperties)
Q_DECLARE_METATYPE(fadeloom::BusMenuEvent)
