// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/BusIconTypes.h"

#include <QDBusMetaType>
#include <QImage>
#include <QPixmap>

namespace fadeloom {

QList<BusPixmap> busPixmaps(const QIcon& icon)
{
    QList<BusPixmap> result;
    for (const auto& size : icon.availableSizes()) {
        const auto image = icon.pixmap(size, 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
        BusPixmap pixmap{image.width(), image.height(), {}};
        pixmap.pixels.reserve(image.sizeInBytes());
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = image.pixel(x, y);
                for (const int part : {qAlpha(pixel), qRed(pixel), qGreen(pixel), qBlue(pixel)})
                    pixmap.pixels += static_cast<char>(part);
            }
        }
        result += pixmap;
    }
    return result;
}

QDBusArgument& operator<<(QDBusArgument& to, const BusPixmap& pixmap)
{
    to.beginStructure();
    to << pixmap.width << pixmap.height << pixmap.pixels;
    to.endStructure();
    return to;
}

const QDBusArgument& operator>>(const QDBusArgument& from, BusPixmap& pixmap)
{
    from.beginStructure();
    from >> pixmap.width >> pixmap.height >> pixmap.pixels;
    from.endStructure();
    return from;
}

QDBusArgument& operator<<(QDBusArgument& to, const BusToolTip& toolTip)
{
    to.beginStructure();
    to << toolTip.iconName << toolTip.iconPixmap << toolTip.title << toolTip.description;
    to.endStructure();
    return to;
}

const QDBusArgument& operator>>(const QDBusArgument& from, BusToolTip& toolTip)
{
    from.beginStructure();
    from >> toolTip.iconName >> toolTip.iconPixmap >> toolTip.title >> toolTip.description;
    from.endStructure();
    return from;
}

void registerBusIconTypes()
{
    qDBusRegisterMetaType<BusPixmap>();
    qDBusRegisterMetaType<QList<BusPixmap>>();
    qDBusRegisterMetaType<BusToolTip>();
}

}  // namespace fadeloom
