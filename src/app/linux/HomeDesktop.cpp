// SPDX-License-Identifier: MIT
#include "app/linux/HomeDesktop.h"

#include "app/linux/TrayPicture.h"
#include "platform/qtdesktop/LayerShell.h"
#include "ui/PanelEngine.h"

#include <QtGlobal>

namespace fadeloom {
namespace {

QString currentDesktop()
{
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP");
}

/// Of Qt. On Wayland an ordinary window can choose neither its place nor to stay in front, which the panel has to.
const char* preferredPlatforms()
{
    if (LayerShell::isOffered())
        return "wayland;xcb";
    return qEnvironmentVariableIsEmpty("DISPLAY") ? "wayland" : "xcb;wayland";
}

}  // namespace

bool HomeDesktop::prepare()
{
    const bool isChosen = !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
    if (!isChosen)
        qputenv("QT_QPA_PLATFORM", preferredPlatforms());
    drawBySoftware();
    return isChosen || !qEnvironmentVariableIsEmpty("DISPLAY")
        || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

HomeDesktop::HomeDesktop()
    : icon_(trayPicture(look_.look().isDark, currentDesktop()), [this] { withoutTray_(); })
{
}

void HomeDesktop::changeLook(const DesktopLook& look)
{
    icon_.setPicture(trayPicture(look.isDark, currentDesktop()));
    lookChanged_(look);
}

}  // namespace fadeloom
