// SPDX-License-Identifier: MIT
// The program's menu bar item.
#pragma once

#include "base/LifeToken.h"
#include "platform/StatusItem.h"

#include <memory>

namespace fadeloom {

/// Its icon is the resource "MenuBarIcon", which the system tints; without it the item is empty. The menu opens on a
/// right click, a click with Control or Option held, and through an accessibility action.
class MenuBarItem final : public StatusItem {
public:
    MenuBarItem();
    MenuBarItem(const MenuBarItem&) = delete;
    MenuBarItem& operator=(const MenuBarItem&) = delete;
    /// Removes it from the menu bar.
    ~MenuBarItem() override;

    void show(const std::string& name) override;
    void whenClicked(std::function<void()> clicked) override;
    void whenMenuOpens(std::function<void()> willOpen) override;
    void setMenu(std::function<StatusMenu()> build) override;

    /// Its button, an `NSStatusBarButton` owned by the item; null before `show`.
    [[nodiscard]] void* button() const;

private:
    class Shown;

    void clicked();
    void openMenu();

    std::function<void()> clicked_ = [] { };
    std::function<void()> menuOpens_ = [] { };
    std::function<StatusMenu()> buildMenu_ = [] { return StatusMenu{}; };
    std::unique_ptr<Shown> shown_;
    LifeToken life_;
};

}  // namespace fadeloom
