// SPDX-License-Identifier: MIT
// The panel below the menu bar.
#pragma once

#include "platform/Popover.h"

#include <functional>
#include <memory>
#include <utility>

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
    /// What fills the view, called once, before it is shown for the first time.
    void whenFirstNeeded(std::function<void()> makeContent) { makeContent_ = std::move(makeContent); }
    /// Points.
    void setContentSize(double width, double height);

    void show() override;
    void close() override;
    /// Also while the click lasts that has closed it by a press on the item.
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
