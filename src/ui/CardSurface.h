// SPDX-License-Identifier: MIT
// A card's background: translucent like glass or opaque, with a line along the inside of its edge.
#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace fadeloom {

/// Painted, because a Rectangle of Qt Quick has no border in two colours.
class CardSurface : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool glass MEMBER hasGlass_ NOTIFY changed)
    Q_PROPERTY(qreal radius MEMBER radius_ NOTIFY changed)
    Q_PROPERTY(qreal highlight MEMBER highlight_ NOTIFY changed)
    Q_PROPERTY(bool isDark MEMBER isDark_ NOTIFY changed)
    Q_PROPERTY(QColor ink MEMBER ink_ NOTIFY changed)

public:
    explicit CardSurface(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    void paintFill(QPainter& painter) const;
    void paintBorder(QPainter& painter) const;

    bool hasGlass_ = true;
    qreal radius_ = 10;
    qreal highlight_ = 0;  // From 0, the neutral line, to 1, the brand colours.
    bool isDark_ = true;
    QColor ink_ = Qt::white;
};

}  // namespace fadeloom
