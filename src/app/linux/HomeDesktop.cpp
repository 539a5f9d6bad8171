// SPDX-License-Identifier: MIT
#include "app/linux/HomeDesktop.h"

#include "app/linux/TrayPicture.h"
#include "ui/PanelEngine.h"

#include <QtGlobal>

namespace fadeloom {

bool HomeDesktop::prepare()
{
    const bool isChosen = !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
    // On Wayland a window can choose neither its place nor to stay in front, which the panel has to: X11 first.
    if (!isChosen)
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");
    drawBySoftware();
    return isChosen || !qEnvironmentVariableIsEmpty("DISPLAY")
        || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

HomeDesktop::HomeDesktop()
    : icon_(trayPicture(look_.isDark()), [this] { withoutTray_(); })
{
}

}  // namespace fadeloom
