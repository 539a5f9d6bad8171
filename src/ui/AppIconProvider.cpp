// SPDX-License-Identifier: MIT
#include "ui/AppIconProvider.h"

#include <QFile>
#include <QFont>
#include <QIcon>
#include <QLinearGradient>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <QTextBoundaryFinder>
#include <QUrl>
#include <QUrlQuery>

namespace fadeloom {
namespace {

constexpr QLatin1String prefix("image://appicon/?");

// The first grapheme: part of a multi-character sequence would not be displayable.
QString initialOf(const QString& name)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, name);
    const auto end = finder.toNextBoundary();
    return end > 0 ? name.left(end).toUpper() : QString();
}

// Rendered explicitly, because Qt's plugin for the format may not be installed.
QPixmap drawing(const QString& file, QSize size)
{
    QSvgRenderer renderer(file);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    if (!renderer.isValid())
        return {};
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    return pixmap;
}

QString valueOf(const QUrlQuery& query, const char* key)
{
    return query.queryItemValue(QLatin1String(key), QUrl::FullyDecoded);
}

// Null if neither the theme nor the file has an icon. `size`: in device pixels, so that nothing is scaled.
QPixmap pictureOf(const QUrlQuery& query, QSize size)
{
    if (const auto theme = valueOf(query, "theme"); !theme.isEmpty() && QIcon::hasThemeIcon(theme))
        return QIcon::fromTheme(theme).pixmap(size, 1.0);
    const auto file = valueOf(query, "file");
    if (file.isEmpty() || !QFile::exists(file))
        return {};
    return file.endsWith(QLatin1String(".svg")) ? drawing(file, size) : QIcon(file).pixmap(size, 1.0);
}

// The dimensions are for a tile of 28, like our other tiles.
QPixmap tile(const QString& initial, QSize size)
{
    constexpr double side = 28;
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size.width() / side, size.height() / side);

    QLinearGradient fill(0, 1, 0, 27);
    fill.setColorAt(0, QColor(0x7A, 0x76, 0x90));
    fill.setColorAt(1, QColor(0x55, 0x51, 0x6A));
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(1, 1, 26, 26), 6.5, 6.5);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor::fromRgbF(1, 1, 1, 0.16F), 0.5));
    painter.drawRoundedRect(QRectF(1.25, 1.25, 25.5, 25.5), 6.25, 6.25);

    QFont font(QStringLiteral("Fadeloom Inter"));
    font.setPixelSize(14);
    font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRectF(0, 0, side, side), Qt::AlignCenter, initial);
    return pixmap;
}

}  // namespace

AppIconProvider::AppIconProvider()
    : QQuickImageProvider(Pixmap)
{
}

QString AppIconProvider::source(const AppEntry& app)
{
    const auto encoded = [](const std::string& text) {
        return QString::fromLatin1(QUrl::toPercentEncoding(QString::fromStdString(text)));
    };
    return prefix + QStringLiteral("theme=") + encoded(app.icon.themeName) + QStringLiteral("&file=")
        + encoded(app.icon.file.string()) + QStringLiteral("&name=") + encoded(app.name);
}

QPixmap AppIconProvider::requestPixmap(const QString& id, QSize* size, const QSize& requestedSize)
{
    const QSize wanted = requestedSize.isEmpty() ? QSize(28, 28) : requestedSize;
    if (size)
        *size = wanted;
    const QUrlQuery query(id.mid(id.indexOf(u'?') + 1));
    if (auto pixmap = pictureOf(query, wanted); !pixmap.isNull())
        return pixmap.size() == wanted ? pixmap
                                       : pixmap.scaled(wanted, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return tile(initialOf(valueOf(query, "name")), wanted);
}

}  // namespace fadeloom
