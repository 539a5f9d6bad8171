// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/Screens.h"

#include <QGuiApplication>
#include <QScreen>

namespace fadeloom {

std::vector<ScreenArea> currentScreens()
{
    // A Wayland host reports positions in logical pixels.
    const bool isInPixels = QGuiApplication::platformName() == QLatin1String("xcb");
    std::vector<ScreenArea> result;
    for (const auto* const screen : QGuiApplication::screens())
        result.push_back(
            {screen->geometry(), screen->availableGeometry(), isInPixels ? screen->devicePixelRatio() : 1});
    return result;
}

bool isOnXDesktop()
{
    return QGuiApplication::platformName() == QLatin1String("xcb")
        && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

}  // namespace fadeloom
