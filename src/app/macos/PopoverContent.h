// SPDX-License-Identifier: MIT
// The panel inside the macOS popover.
#pragma once

#include <QQuickItem>
#include <QQuickView>
#include <QWindow>

#include <memory>

namespace fadeloom {

class AppKitPopover;

/// A frameless Qt window, embedded in the view that the popover provides. Its content determines the popover's size.
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
    std::unique_ptr<QWindow> host_;  // The popover's view, wrapped by Qt.
    std::unique_ptr<QQuickView> view_;
};

}  // namespace fadeloom
