// SPDX-License-Identifier: MIT
#include "app/macos/PopoverContent.h"

#include "platform/macos/AppKitPopover.h"

#include <QKeyEvent>

namespace fadeloom {

/// Escape closes the popover when nothing inside has a use for the key.
class PopoverContent::View final : public QQuickView {
public:
    View(QWindow& host, AppKitPopover& popover)
        : QQuickView(&host)
        , popover_(popover)
    {
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        QQuickView::keyPressEvent(event);
        const bool isUsed = activeFocusItem() != nullptr && event->isAccepted();
        if (!isUsed && event->key() == Qt::Key_Escape)
            popover_.close();
    }

private:
    AppKitPopover& popover_;
};

PopoverContent::PopoverContent(AppKitPopover& popover, std::unique_ptr<QQuickItem> content)
    : popover_(popover)
    , host_(QWindow::fromWinId(reinterpret_cast<WId>(popover.contentView())))
    , view_(std::make_unique<View>(*host_, popover))
{
    view_->setColor(Qt::transparent);  // What the popover is made of shines through.
    view_->setResizeMode(QQuickView::SizeViewToRootObject);
    view_->setContent({}, nullptr, content.release());
    QObject::connect(view_.get(), &QWindow::widthChanged, view_.get(), [this] { fitPopover(); });
    QObject::connect(view_.get(), &QWindow::heightChanged, view_.get(), [this] { fitPopover(); });
    view_->setPosition(0, 0);
    view_->show();
    fitPopover();
}

PopoverContent::~PopoverContent()
{
    view_->disconnect();
    view_.reset();  // Before its host, which would end it as a child.
}

QQuickView& PopoverContent::view()
{
    return *view_;
}

void PopoverContent::fitPopover()
{
    popover_.setContentSize(view_->width(), view_->height());
}

}  // namespace fadeloom
