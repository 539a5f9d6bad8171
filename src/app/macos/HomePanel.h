// SPDX-License-Identifier: MIT
// The panel in the popover below the menu bar item.
#pragma once

#include "app/macos/HomeDesktop.h"
#include "app/macos/PopoverContent.h"
#include "platform/macos/AppKitPopover.h"

#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace fadeloom {

/// Thread: main.
class HomePanel {
public:
    /// `desktop` must outlive this.
    explicit HomePanel(HomeDesktop& desktop)
        : popover_(desktop.icon())
    {
    }
    HomePanel(const HomePanel&) = delete;
    HomePanel& operator=(const HomePanel&) = delete;

    [[nodiscard]] Popover& popover() { return popover_; }
    /// The content, created when it opens for the first time; its implicit size is the panel's.
    void setContent(std::function<std::unique_ptr<QQuickItem>()> make)
    {
        popover_.whenFirstShown([this, make = std::move(make)] {
            if (auto content = make())
                content_.emplace(popover_, std::move(content));
        });
    }

private:
    AppKitPopover popover_;
    std::optional<PopoverContent> content_;
};

}  // namespace fadeloom
