// SPDX-License-Identifier: MIT
// The panel inside of the popover of macOS.
#pragma once

#include <QQuickItem>
#include <QQuickView>
#include <QWindow>

#include <memory>

namespace fadeloom {

class AppKitPopover;

/// A Qt window without a frame, laid into the view that the popover hands out. Its content gives the popover its size.
/// Needs a QGuiApplication. Thread: main.
class PopoverContent {
public:
    /// `popover` must outlive this. `content`: its implicit size is the panel's.
    PopoverContent(AppKitPopover& popover, std::unique_ptr<QQuickItem> content);
    PopoverContent(const PopoverContent&) = delete;
    PopoverContent& operator=(const PopoverContent&) = delete;
    ~PopoverContent();

    [[nodiscard]] QQuickView& view();

private:
    void fitPopover();

    AppKitPopover& popover_;
    std::unique_ptr<QWindow> host_;  // The popover's view, as Qt sees it.
    std::unique_ptr<QQuickView> view_;
};

}  // namespace fadeloom
