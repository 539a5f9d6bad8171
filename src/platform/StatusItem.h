// SPDX-License-Identifier: MIT
// The program's place among the system's status icons.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace fadeloom {

/// An entry of a menu. One without a title is a line between entries.
struct StatusMenuEntry {
    std::string title{};
    std::function<void()> action{};
    std::string key{};  // With Control or Command: "q".
    bool isChecked = false;
    bool isClick = false;  // Does what a click on the icon does.

    [[nodiscard]] bool isSeparator() const { return title.empty(); }
};

using StatusMenu = std::vector<StatusMenuEntry>;

/// Thread: main.
class StatusItem {
public:
    virtual ~StatusItem() = default;

    /// Shows the icon, under this name for those who hover over it or hear it read.
    virtual void show(const std::string& name) = 0;
    /// Called for a click that opens no menu.
    virtual void whenClicked(std::function<void()> clicked) = 0;
    /// Called before the menu opens.
    virtual void whenMenuOpens(std::function<void()> willOpen) = 0;
    /// The menu of a right click, and of a click with Control held. It is built when it is about to open; a desktop may
    /// ask for it sooner, too.
    virtual void setMenu(std::function<StatusMenu()> build) = 0;

    // Not every bar passes these on.

    /// Called for the wheel over the icon, with notches: positive away from the user.
    virtual void whenScrolled(std::function<void(int notches)> /*scrolled*/) { }
    /// Called for a middle click.
    virtual void whenMiddleClicked(std::function<void()> /*clicked*/) { }
    /// What is read below the name; may change at any time.
    virtual void setDescription(const std::string& /*text*/) { }
};

}  // namespace fadeloom
