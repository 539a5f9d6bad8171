// SPDX-License-Identifier: MIT
#include "ui/PanelPicture.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QQuickWindow>

#include <cmath>

namespace fadeloom {
namespace {

// Without a real window, this determines the device pixel ratio for the views.
class Pixels final : public QQuickRenderControl { };

void settle()
{
    constexpr int milliseconds = 400;  // Longer than any animation.
    for (const QDeadlineTimer end(milliseconds); !end.hasExpired();)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

}  // namespace

QImage pictureOf(QQuickItem& view, const std::function<void(QQuickItem& root)>& interact, double scale)
{
    Pixels control;
    QQuickWindow window(&control);
    window.setColor(Qt::transparent);
    view.setParentItem(window.contentItem());
    settle();
    window.setGeometry(
        0, 0, static_cast<int>(std::ceil(view.width())), static_cast<int>(std::ceil(view.height())));
    window.contentItem()->setSize(window.size());
    if (interact) {
        interact(*window.contentItem());
        settle();
        window.setGeometry(
            0, 0, static_cast<int>(std::ceil(view.width())), static_cast<int>(std::ceil(view.height())));
        window.contentItem()->setSize(window.size());
    }

    QImage image(window.size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    auto target = QQuickRenderTarget::fromPaintDevice(&image);
    target.setDevicePixelRatio(scale);
    window.setRenderTarget(target);
    control.polishItems();
    control.sync();
    control.render();
    view.setParentItem(nullptr);
    return image;
}

}  // namespace fadeloom
