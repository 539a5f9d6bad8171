// SPDX-License-Identifier: MIT
// The program on macOS: its menu bar item, dialogs, the appearance.
#pragma once

#include "platform/DesktopAppearance.h"
#include "platform/macos/AppKitApplication.h"
#include "platform/macos/AppKitDialogs.h"
#include "platform/macos/AppearanceWatch.h"
#include "platform/macos/MenuBarItem.h"
#include "platform/macos/PowerOffWatch.h"

#include <functional>
#include <utility>

namespace fadeloom {

/// Needs a QGuiApplication. Thread: main.
class HomeDesktop {
public:
    /// Call before creating the application object. Returns whether there is a display.
    [[nodiscard]] static bool prepare() { return true; }

    HomeDesktop() = default;
    HomeDesktop(const HomeDesktop&) = delete;
    HomeDesktop& operator=(const HomeDesktop&) = delete;

    [[nodiscard]] Application& application() { return application_; }
    [[nodiscard]] Dialogs& dialogs() { return dialogs_; }
    [[nodiscard]] MenuBarItem& icon() { return icon_; }
    [[nodiscard]] DesktopAppearance appearance() const { return {.isDark = appearance_.isDark()}; }
    /// Called whenever the system's appearance changes.
    void whenAppearanceChanges(std::function<void(const DesktopAppearance&)> changed)
    {
        appearanceChanged_ = std::move(changed);
    }
    /// Called when the user logs out or shuts down, while there is still time to shut down cleanly.
    void whenSessionEnds(std::function<void()> ends) { sessionEnds_ = std::move(ends); }

private:
    std::function<void(const DesktopAppearance&)> appearanceChanged_ = [](const DesktopAppearance&) { };
    std::function<void()> sessionEnds_ = [] { };
    AppKitApplication application_;
    AppKitDialogs dialogs_;
    AppearanceWatch appearance_{[this](bool isDark) { appearanceChanged_({.isDark = isDark}); }};
    MenuBarItem icon_;
    PowerOffWatch powerOff_{[this] { sessionEnds_(); }};
};

}  // namespace fadeloom
