// SPDX-License-Identifier: MIT
#include "app/DesktopLinux.h"

#include "app/TrayPicture.h"
#include "ui/PanelEngine.h"

#include <QtGlobal>

#include <iostream>

namespace fadeloom {

bool DesktopLinux::prepare()
{
    const bool isChosen = !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
    // On Wayland a window can choose neither its place nor to stay in front, which the panel has to: X11 first.
    if (!isChosen)
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");
    drawBySoftware();
    return isChosen || !qEnvironmentVariableIsEmpty("DISPLAY")
        || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

DesktopLinux::DesktopLinux()
    : icon_(trayPicture(look_.isDark()), [this] { withoutTray_(); })
{
}

PanelLinux::PanelLinux(DesktopLinux& desktop)
    : desktop_(desktop)
    , popover_([&desktop] { return desktop.icon().place(); })
{
    desktop_.whenWithoutTray([this] { beOrdinary(); });
}

PanelLinux::~PanelLinux()
{
    desktop_.whenWithoutTray([] { });
}

void PanelLinux::beOrdinary()
{
    std::cerr << "fadeloom: this desktop shows no status icons; the panel is an ordinary window\n";
    popover_.becomeOrdinaryWindow();
    popover_.show();
}

}  // namespace fadeloom
