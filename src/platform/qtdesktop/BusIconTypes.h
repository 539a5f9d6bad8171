// SPDX-License-Identifier: MIT
// Pictures and the tool tip of a status icon, as they go over the message bus.
#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QIcon>
#include <QList>
#include <QMetaType>
#include <QString>

namespace fadeloom {

/// A picture of 32-bit pixels, alpha first, in the byte order of networks: (iiay).
struct BusPixmap {
    int width = 0;
    int height = 0;
    QByteArray pixels;
};

/// (sa(iiay)ss)
struct BusToolTip {
    QString iconName;
    QList<BusPixmap> iconPixmap;
    QString title;
    QString description;
};

/// The icon in each size that it has.
[[nodiscard]] QList<BusPixmap> busPixmaps(const QIcon& icon);

QDBusArgument& operator<<(QDBusArgument& to, const BusPixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& from, BusPixmap& pixmap);
QDBusArgument& operator<<(QDBusArgument& to, const BusToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& from, BusToolTip& toolTip);

/// Before any of them goes over the bus.
void registerBusIconTypes();

}  // namespace fadeloom

Q_DECLARE_METATYPE(fadeloom::BusPixmap)
Q_DECLARE_METATYPE(fadeloom::BusToolTip)
