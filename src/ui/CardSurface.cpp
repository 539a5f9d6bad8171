// SPDX-License-Identifier: MIT
#include "ui/CardSurface.h"

#include "ui/Brand.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace fadeloom {
namespace {

QColor white(double opacity)
{
    return QColor::fromRgbF(1, 1, 1, static_cast<float>(opacity));
}

QColor at(QColor colour, double opacity)
{
    colour.setAlphaF(static_cast<float>(opacity));
    return colour;
}

}  // namespace

CardSurface::CardSurface(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &CardSurface::changed, this, [this] { update(); });
}

void CardSurface::paint(QPainter* painter)
{
    painter->setRenderHint(QPainter::Antialiasing);
    paintFill(*painter);
    paintBorder(*painter);
}

void CardSurface::paintFill(QPainter& painter) const
{
    painter.setPen(Qt::NoPen);
    if (!hasGlass_) {
        painter.setBrush(at(ink_, 0.05));
        painter.drawRoundedRect(boundingRect(), radius_, radius_);
        return;
    }
    QLinearGradient fill(0, 0, 0, height());
    fill.setColorAt(0, white(isDark_ ? 0.085 : 0.88));
    fill.setColorAt(1, white(isDark_ ? 0.045 : 0.66));
    painter.setBrush(fill);
    painter.drawRoundedRect(boundingRect(), radius_, radius_);

    // The highlight along the upper edge, inside the border, ends where the corners begin.
    painter.save();
    painter.setClipRect(QRectF(0, 0, width(), radius_));
    QLinearGradient light(0, 0, 0, radius_);
    light.setColorAt(0, white(isDark_ ? 0.07 : 0.90));
    light.setColorAt(1, white(0));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(light, 1));
    painter.drawRoundedRect(boundingRect().adjusted(0.5, 0.5, -0.5, -0.5), radius_ - 0.5, radius_ - 0.5);
    painter.restore();
}

void CardSurface::paintBorder(QPainter& painter) const
{
    const auto line = boundingRect().adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setBrush(Qt::NoBrush);
    if (highlight_ < 1) {
        painter.setPen(QPen(at(ink_, 0.07 * (1 - highlight_)), 1));
        painter.drawRoundedRect(line, radius_ - 0.5, radius_ - 0.5);
    }
    if (highlight_ > 0) {
        QLinearGradient gradient(0, 0, width(), 0);
        gradient.setColorAt(0, at(Brand::cyan(), 0.45 * highlight_));
        gradient.setColorAt(1, at(Brand::violet(), 0.45 * highlight_));
        painter.setPen(QPen(gradient, 1));
        painter.drawRoundedRect(line, radius_ - 0.5, radius_ - 0.5);
    }
}

}  // namespace fadeloom
