// SPDX-License-Identifier: MIT
#include "app/macos/PopoverContent.h"

#include "platform/macos/AppKitPopover.h"
#include "platform/qt/EscapableView.h"

namespace fadeloom {

PopoverContent::PopoverContent(AppKitPopover& popover, std::unique_ptr<QQuickItem> content)
    : popover_(popover)
    , host_(QWindow::fromWinId(reinterpret_cast<WId>(popover.contentView())))
    , view_(std::make_unique<EscapableView>([&popover] { popover.close(); }, host_.get()))
{
    view_->setColor(Qt::transparent);  // Shows the popover's material.
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
    view_.reset();  // Before its host, which would destroy it as a child.
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
