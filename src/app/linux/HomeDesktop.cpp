// SPDX-License-Identifier: MIT
#include "app/linux/HomeDesktop.h"

#include "app/linux/TrayPicture.h"
#include "platform/qtdesktop/LayerShell.h"
#include "ui/PanelEngine.h"

#include <QLoggingCategory>
#include <QtGlobal>

namespace fadeloom {
namespace {

QString currentDesktop()
{
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP");
}

/// Selects software rendering; what Qt would load otherwise takes 50 MB.
void avoidGraphicsStack()
{
    constexpr auto variable = "QT_WAYLAND_CLIENT_BUFFER_INTEGRATION";
    if (!qEnvironmentVariableIsEmpty(variable))
        return;
    qputenv(variable, "none");
    // Qt warns that there is none of this name.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.wayland.warning=false"));
}

/// Selects Qt's platform plugin. On Wayland an ordinary window can neither choose its position nor stay on top, which
/// the panel must.
const char* preferredPlatforms()
{
    if (LayerShell::isOffered()) {
        avoidGraphicsStack();
        return "wayland;xcb";
    }
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
    : icon_(trayPicture(appearance_.appearance().isDark, currentDesktop()), [this] { withoutTray_(); })
{
}

void HomeDesktop::changeAppearance(const DesktopAppearance& appearance)
{
    icon_.setPicture(trayPicture(appearance.isDark, currentDesktop()));
    appearanceChanged_(appearance);
}

}  // namespace fadeloom
