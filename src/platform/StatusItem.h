// SPDX-License-Identifier: MIT
// The program's status icon.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace fadeloom {

/// A menu entry. One without a title is a separator.
struct StatusMenuEntry {
    std::string title{};
    std::function<void()> action{};
    std::string key{};  // With Control or Command: "q".
    bool isChecked = false;
    bool isClick = false;  // Has the same effect as a click on the icon.

    [[nodiscard]] bool isSeparator() const { return title.empty(); }
};

using StatusMenu = std::vector<StatusMenuEntry>;

/// Thread: main.
class StatusItem {
public:
    virtual ~StatusItem() = default;

    /// Shows the icon. The name is for its tooltip and accessibility.
    virtual void show(const std::string& name) = 0;
    /// Called for a click that does not open the menu.
    virtual void whenClicked(std::function<void()> clicked) = 0;
    /// Called before the menu opens.
    virtual void whenMenuOpens(std::function<void()> willOpen) = 0;
    /// The menu for a right click, and for a click with Control held. It is built when it is about to open; a desktop
    /// may request it earlier as well.
    virtual void setMenu(std::function<StatusMenu()> build) = 0;

    // Not every bar forwards these.

    /// Called when the wheel is scrolled over the icon, with notches: positive away from the user.
    virtual void whenScrolled(std::function<void(int notches)> /*scrolled*/) { }
    /// Called for a middle click.
    virtual void whenMiddleClicked(std::function<void()> /*clicked*/) { }
    /// The second line of the tooltip; may change at any time.
    virtual void setDescription(const std::string& /*text*/) { }
};

}  // namespace fadeloom
