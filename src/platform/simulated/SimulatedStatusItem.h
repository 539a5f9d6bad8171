// SPDX-License-Identifier: MIT
// A status icon that a test clicks.
#pragma once

#include "platform/StatusItem.h"

#include <algorithm>
#include <utility>

namespace fadeloom {

class SimulatedStatusItem final : public StatusItem {
public:
    void show(const std::string& name) override { name_ = name; }
    void whenClicked(std::function<void()> clicked) override { clicked_ = std::move(clicked); }
    void whenMenuOpens(std::function<void()> willOpen) override { menuOpens_ = std::move(willOpen); }
    void setMenu(std::function<StatusMenu()> build) override { build_ = std::move(build); }
    void whenScrolled(std::function<void(int notches)> scrolled) override { scrolled_ = std::move(scrolled); }
    void whenMiddleClicked(std::function<void()> clicked) override { middleClicked_ = std::move(clicked); }
    void setDescription(const std::string& text) override { description_ = text; }

    [[nodiscard]] const std::string& description() const { return description_; }
    void scroll(int notches) { scrolled_(notches); }
    void middleClick() { middleClicked_(); }
    /// Its name; empty before it is shown.
    [[nodiscard]] const std::string& name() const { return name_; }
    void click() { clicked_(); }
    /// The menu of a right click.
    [[nodiscard]] StatusMenu openMenu()
    {
        menuOpens_();
        return build_();
    }
    /// Opens the menu and selects the entry with this title; returns whether there is one.
    bool choose(const std::string& title)
    {
        const auto menu = openMenu();
        const auto entry = std::ranges::find(menu, title, &StatusMenuEntry::title);
        if (entry == menu.end())
            return false;
        entry->action();
        return true;
    }

private:
    std::string name_;
    std::string description_;
    std::function<void()> clicked_ = [] { };
    std::function<void(int)> scrolled_ = [](int) { };
    std::function<void()> middleClicked_ = [] { };
    std::function<void()> menuOpens_ = [] { };
    std::function<StatusMenu()> build_ = [] { return StatusMenu{}; };
};

}  // namespace fadeloom
