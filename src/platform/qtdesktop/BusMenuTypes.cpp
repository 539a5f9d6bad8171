// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/BusMenuTypes.h"

#include <QDBusMetaType>

namespace fadeloom {

QDBusArgument& operator<<(QDBusArgument& to, const BusMenuLayout& layout)
{
    to.beginStructure();
    to << layout.id << layout.properties;
    to.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const auto& child : layout.children)
        to << QDBusVariant(QVariant::fromValue(child));
    to.endArray();
    to.endStructure();
    return to;
}

const QDBusArgument& operator>>(const QDBusArgument& from, BusMenuLayout& layout)
{
    layout.children.clear();
    from.beginStructure();
    from >> layout.id >> layout.properties;
    from.beginArray();
    while (!from.atEnd()) {
        QDBusVariant child;
        from >> child;
        layout.children += qdbus_cast<BusMenuLayout>(child.variant());
    }
    from.endArray();
    from.endStructure();
    return from;
}

QDBusArgument& operator<<(QDBusArgument& to, const BusMenuProperties& properties)
{
    to.beginStructure();
    to << properties.id << properties.properties;
    to.endStructure();
    return to;
}

const QDBusArgument& operator>>(const QDBusArgument& from, BusMenuProperties& properties)
{
    from.beginStructure();
    from >> properties.id >> properties.properties;
    from.endStructure();
    return from;
}

QDBusArgument& operator<<(QDBusArgument& to, const BusMenuEvent& event)
{
    to.beginStructure();
    to << event.id << event.event << event.data << event.time;
    to.endStructure();
    return to;
}

const QDBusArgument& operator>>(const QDBusArgument& from, BusMenuEvent& event)
{
    from.beginStructure();
    from >> event.id >> event.event >> event.data >> event.time;
    from.endStructure();
    return from;
}

void registerBusMenuTypes()
{
    qDBusRegisterMetaType<BusMenuLayout>();
    qDBusRegisterMetaType<BusMenuProperties>();
    qDBusRegisterMetaType<QList<BusMenuProperties>>();
    qDBusRegisterMetaType<BusMenuEvent>();
    qDBusRegisterMetaType<QList<BusMenuEvent>>();
    qDBusRegisterMetaType<QList<int>>();
}

}  // namespace fadeloom
