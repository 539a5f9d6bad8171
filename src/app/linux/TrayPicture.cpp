// SPDX-License-Identifier: MIT
#include "app/linux/TrayPicture.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace fadeloom {

QIcon trayPicture(bool isOnDark)
{
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 44, 48, 64}) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        // Drawn for this size: its lines fall on whole pixels.
        QSvgRenderer drawing(
            size % 16 == 0 ? QStringLiteral(":/icons/tray-16.svg") : QStringLiteral(":/icons/tray.svg"));
        QPainter painter(&picture);
        drawing.render(&painter);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(picture.rect(), isOnDark ? QColor(0xF3, 0xF2, 0xF7) : QColor(0x1D, 0x1B, 0x24));
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

}  // namespace fadeloom
