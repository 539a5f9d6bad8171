// SPDX-License-Identifier: MIT
#include "ui/ResponseCurve.h"

#include "ui/Brand.h"
#include "ui/ResponsePoints.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <vector>

namespace fadeloom {
namespace {

QColor faded(QColor colour, float opacity)
{
    colour.setAlphaF(colour.alphaF() * opacity);
    return colour;
}

}  // namespace

ResponseCurve::ResponseCurve(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &ResponseCurve::changed, this, [this] { update(); });
}

void ResponseCurve::paint(QPainter* painter)
{
    constexpr double corner = 6;
    QPainterPath shape;
    shape.addRoundedRect(boundingRect(), corner, corner);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setClipPath(shape);
    paintGrid(*painter);
    paintCurve(*painter);
}

void ResponseCurve::paintGrid(QPainter& painter) const
{
    for (const int decibels : {-12, -6, 0, 6, 12}) {
        painter.setPen(QPen(faded(ink_, decibels == 0 ? 0.18F : 0.07F), 0.5));
        const double y = responseY(decibels, height());
        painter.drawLine(QPointF(0, y), QPointF(width(), y));
    }
}

void ResponseCurve::paintCurve(QPainter& painter) const
{
    const std::vector<float> gains(gains_.begin(), gains_.end());
    const auto points = responsePoints(gains, preamp_);
    QPainterPath curve;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double x = width() * static_cast<double>(i) / (responsePointCount - 1);
        const QPointF point(x, responseY(points.at(i), height()));
        i == 0 ? curve.moveTo(point) : curve.lineTo(point);
    }

    QPainterPath area = curve;
    area.lineTo(width(), height());
    area.lineTo(0, height());
    area.closeSubpath();
    QLinearGradient fill(0, area.boundingRect().top(), 0, height());
    fill.setColorAt(0, faded(Brand::cyan(), 0.18F));
    fill.setColorAt(1, faded(Brand::violet(), 0.18F));
    painter.fillPath(area, fill);

    QLinearGradient stroke(0, 0, width(), 0);
    stroke.setColorAt(0, Brand::cyan());
    stroke.setColorAt(0.5, Brand::violet());
    stroke.setColorAt(1, Brand::pink());
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(stroke, isActive_ ? 1.6 : 1.0, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawPath(curve);
}

}  // namespace fadeloom
