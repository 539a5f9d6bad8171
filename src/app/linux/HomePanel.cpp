// SPDX-License-Identifier: MIT
#include "app/linux/HomePanel.h"

#include "app/linux/HomeDesktop.h"

#include <iostream>

namespace fadeloom {

HomePanel::HomePanel(HomeDesktop& desktop)
    : desktop_(desktop)
    , popover_([&desktop] { return desktop.icon().place(); })
{
    desktop_.whenWithoutTray([this] { beOrdinary(); });
}

HomePanel::~HomePanel()
{
    desktop_.whenWithoutTray([] { });
}

void HomePanel::beOrdinary()
{
    std::cerr << "fadeloom: this desktop shows no status icons; the panel is an ordinary window\n";
    popover_.becomeOrdinaryWindow();
    popover_.show();
}

}  // namespace fadeloom
