// SPDX-License-Identifier: MIT
// The graph of an equalizer's response.
#pragma once

#include <QColor>
#include <QList>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace fadeloom {

/// Painted, because not every rendering backend of Qt Quick can draw a path. It accepts no clicks.
class ResponseCurve : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<qreal> gains MEMBER gains_ NOTIFY changed)
    Q_PROPERTY(qreal preamp MEMBER preamp_ NOTIFY changed)
    Q_PROPERTY(bool active MEMBER isActive_ NOTIFY changed)
    Q_PROPERTY(QColor ink MEMBER ink_ NOTIFY changed)

public:
    explicit ResponseCurve(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    void paintGrid(QPainter& painter) const;
    void paintCurve(QPainter& painter) const;

    QList<qreal> gains_;  // Decibels, the lowest band first.
    qreal preamp_ = 0;  // Decibels.
    bool isActive_ = true;
    QColor ink_ = Qt::white;
};

}  // namespace fadeloom
