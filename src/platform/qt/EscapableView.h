// SPDX-License-Identifier: MIT
// A Qt Quick view that reports Escape.
#pragma once

#include <QKeyEvent>
#include <QQuickItem>
#include <QQuickView>

#include <functional>
#include <utility>

namespace fadeloom {

/// Thread: main.
class EscapableView final : public QQuickView {
public:
    /// `escaped` is called when Escape is pressed and no item handles the key.
    explicit EscapableView(std::function<void()> escaped, QWindow* parent = nullptr)
        : QQuickView(parent)
        , escaped_(std::move(escaped))
    {
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        QQuickView::keyPressEvent(event);
        const bool isUsed = activeFocusItem() != nullptr && event->isAccepted();
        if (!isUsed && event->key() == Qt::Key_Escape)
            escaped_();
    }

private:
    std::function<void()> escaped_;
};

}  // namespace fadeloom
