// SPDX-License-Identifier: MIT
#include "ui/SymbolProvider.h"

#include <QColor>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QUrl>

namespace fadeloom {

SymbolProvider::SymbolProvider()
    : QQuickImageProvider(Image)
{
}

QImage SymbolProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize)
{
    const auto name = id.section(u'/', 0, 0);
    const QColor colour(QUrl::fromPercentEncoding(id.section(u'/', 1, 1).toLatin1()));
    const QSize wanted = requestedSize.isEmpty() ? QSize(24, 24) : requestedSize;
    if (size)
        *size = wanted;
    QImage image(wanted, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);

    const auto file = QStringLiteral(":/symbols/%1.svg").arg(name);
    QSvgRenderer symbol;
    if (!QFile::exists(file) || !symbol.load(file))
        return image;
    QPainter painter(&image);
    symbol.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), colour);
    return image;
}

}  // namespace fadeloom
