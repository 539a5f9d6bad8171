// SPDX-License-Identifier: MIT
// The panel beside the tray icon.
#pragma once

#include "platform/qtdesktop/QtPopover.h"

#include <utility>

namespace fadeloom {

class HomeDesktop;

/// Thread: main.
class HomePanel {
public:
    /// `desktop` must outlive this.
    explicit HomePanel(HomeDesktop& desktop);
    HomePanel(const HomePanel&) = delete;
    HomePanel& operator=(const HomePanel&) = delete;
    ~HomePanel();

    [[nodiscard]] Popover& popover() { return popover_; }
    /// The content, created when it opens for the first time; its implicit size is the panel's.
    void setContent(QtPopover::MakeContent make) { popover_.setContent(std::move(make)); }

private:
    void showAsOrdinaryWindow();

    HomeDesktop& desktop_;
    QtPopover popover_;
};

}  // namespace fadeloom
