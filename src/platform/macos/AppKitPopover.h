// SPDX-License-Identifier: MIT
// The panel's popover below the menu bar.
#pragma once

#include "platform/Popover.h"

#include <functional>
#include <memory>
#include <utility>

namespace fadeloom {

class MenuBarItem;

/// Closes on a click elsewhere. Its content is drawn by others, into a view that it provides.
class AppKitPopover final : public Popover {
public:
    /// `item` must outlive this.
    explicit AppKitPopover(const MenuBarItem& item);
    AppKitPopover(const AppKitPopover&) = delete;
    AppKitPopover& operator=(const AppKitPopover&) = delete;
    ~AppKitPopover() override;

    /// An `NSView`, owned by the popover.
    [[nodiscard]] void* contentView() const;
    /// Fills the view; called once, before it is first shown.
    void whenFirstShown(std::function<void()> makeContent) { makeContent_ = std::move(makeContent); }
    /// Points.
    void setContentSize(double width, double height);

    void show() override;
    void close() override;
    /// Also true during the click whose press on the item has closed it.
    bool isShown() const override;
    void setAnimated(bool isAnimated) override;
    void whenShown(std::function<void()> willShow) override;
    void whenClosed(std::function<void()> didClose) override;

private:
    class Parts;

    const std::unique_ptr<Parts> parts_;
    std::function<void()> makeContent_;
};

}  // namespace fadeloom
