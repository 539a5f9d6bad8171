// SPDX-License-Identifier: MIT
// Renders a square icon at the given size in pixels, at build time:
//
//   drawIcon DRAWING.svg SIZE PICTURE.png
#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>

#include <cstdio>

int main(int count, char** arguments)
{
    if (count != 4) {
        std::fputs("usage: drawIcon DRAWING.svg SIZE PICTURE.png\n", stderr);
        return 2;
    }
    QSvgRenderer drawing(QString::fromLocal8Bit(arguments[1]));
    const int size = QString::fromLocal8Bit(arguments[2]).toInt();
    QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawing.render(&painter);
    painter.end();
    if (!drawing.isValid() || !picture.save(QString::fromLocal8Bit(arguments[3]), "png")) {
        std::fprintf(stderr, "drawIcon: cannot draw %s\n", arguments[1]);
        return 1;
    }
    return 0;
}
