// SPDX-License-Identifier: MIT
// The panel below the menu bar.
#pragma once

#include "platform/Popover.h"

#include <memory>

namespace fadeloom {

class MenuBarItem;

/// Closes when the user clicks elsewhere. Its content is drawn by others, into a view that it hands out.
class AppKitPopover final : public Popover {
public:
    /// `item` must outlive this.
    explicit AppKitPopover(const MenuBarItem& item);
    AppKitPopover(const AppKitPopover&) = delete;
    AppKitPopover& operator=(const AppKitPopover&) = delete;
    ~AppKitPopover() override;

    /// An `NSView` that stays the popover's.
    [[nodiscard]] void* contentView() const;
    /// Points.
    void setContentSize(double width, double height);

    void show() override;
    void close() override;
    bool isShown() const override;
    void setAnimated(bool isAnimated) override;
    void whenShown(std::function<void()> willShow) override;
    void whenClosed(std::function<void()> didClose) override;

private:
    class Parts;

    const MenuBarItem& item_;
    const std::unique_ptr<Parts> parts_;
};

}  // namespace fadeloom
