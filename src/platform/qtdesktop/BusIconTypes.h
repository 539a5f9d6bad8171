// SPDX-License-Identifier: MIT
// Pixmaps and tooltip of a status icon, in D-Bus types.
#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QIcon>
#include <QList>
#include <QMetaType>
#include <QString>

namespace fadeloom {

/// An image of 32-bit ARGB pixels in network byte order: (iiay).
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

/// The icon in each of its sizes.
[[nodiscard]] QList<BusPixmap> busPixmaps(const QIcon& icon);

QDBusArgument& operator<<(QDBusArgument& to, const BusPixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& from, BusPixmap& pixmap);
QDBusArgument& operator<<(QDBusArgument& to, const BusToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& from, BusToolTip& toolTip);

/// Registers the types with Qt. Call before sending them.
void registerBusIconTypes();

}  // namespace fadeloom

Q_DECLARE_METATYPE(fadeloom::BusPixmap)
Q_DECLARE_METATYPE(fadeloom::BusToolTip)
