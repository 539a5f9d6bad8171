// SPDX-License-Identifier: MIT
// The window beside the status icon, which closes when it loses the focus.
#pragma once

#include <functional>

namespace fadeloom {

/// Thread: main.
class Popover {
public:
    virtual ~Popover() = default;

    /// Opens it beside the status icon and gives it the keyboard focus.
    virtual void show() = 0;
    virtual void close() = 0;
    [[nodiscard]] virtual bool isShown() const = 0;
    /// Whether opening and closing are animated from now on.
    virtual void setAnimated(bool isAnimated) = 0;

    /// Called before it opens, and after it has closed for any reason.
    virtual void whenShown(std::function<void()> willShow) = 0;
    virtual void whenClosed(std::function<void()> didClose) = 0;
};

}  // namespace fadeloom
