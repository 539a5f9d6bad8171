// SPDX-License-Identifier: MIT
#include "app/linux/TrayPicture.h"

#include <QPainter>
#include <QPixmap>
#include <QStandardPaths>
#include <QSvgRenderer>

#include <algorithm>

namespace fadeloom {
namespace {

const QColor light(0xF3, 0xF2, 0xF7);
const QColor dark(0x1D, 0x1B, 0x24);
constexpr qreal rimOpacity = 0.55;

QPixmap blank(int size)
{
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    return picture;
}

QPixmap silhouette(int size, const QColor& color)
{
    auto picture = blank(size);
    // Drawn for this size: its lines fall on whole pixels.
    QSvgRenderer drawing(
        size % 16 == 0 ? QStringLiteral(":/icons/tray-16.svg") : QStringLiteral(":/icons/tray.svg"));
    QPainter painter(&picture);
    drawing.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), color);
    return picture;
}

QPixmap rim(int size, const QColor& color)
{
    const auto shape = silhouette(size, color);
    auto result = blank(size);
    QPainter painter(&result);
    const int width = std::max(1, size / 24);
    for (const int x : {-width, 0, width}) {
        for (const int y : {-width, 0, width})
            painter.drawPixmap(x, y, shape);
    }
    return result;
}

/// Desktops whose bars draw symbolic icons in their text colour.
bool recoloursIcons(const QString& desktop)
{
    const auto names = desktop.split(QLatin1Char(':'));
    return std::ranges::any_of(names, [](const QString& name) {
        return name == QLatin1String("KDE") || name == QLatin1String("GNOME")
            || name == QLatin1String("Unity") || name == QLatin1String("X-Cinnamon")
            || name == QLatin1String("Budgie");
    });
}

bool isInstalled(const QString& name)
{
    return !QStandardPaths::locate(
        QStandardPaths::GenericDataLocation, QStringLiteral("icons/hicolor/symbolic/apps/%1.svg").arg(name))
                .isEmpty();
}

}  // namespace

QIcon trayDrawing(bool isOnDark)
{
    QIcon icon;
    for (const int size : {16, 18, 22, 24, 27, 32, 33, 36, 44, 48, 64}) {
        auto picture = blank(size);
        QPainter painter(&picture);
        painter.setOpacity(rimOpacity);
        painter.drawPixmap(0, 0, rim(size, isOnDark ? dark : light));
        painter.setOpacity(1);
        painter.drawPixmap(0, 0, silhouette(size, isOnDark ? light : dark));
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

StatusNotifierItem::Picture trayPicture(bool isOnDark, const QString& desktop)
{
    const auto name = QStringLiteral("com.fadeloom.app-symbolic");
    const bool isKnown = recoloursIcons(desktop) && isInstalled(name);
    return {isKnown ? name : QString(), trayDrawing(isOnDark)};
}

}  // namespace fadeloom
