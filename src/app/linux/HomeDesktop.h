// SPDX-License-Identifier: MIT
// The program on a Linux desktop: its tray icon, dialogs, the appearance.
#pragma once

#include "platform/qtdesktop/QtApplication.h"
#include "platform/qtdesktop/QtDialogs.h"
#include "platform/qtdesktop/QtTrayIcon.h"
#include "platform/qtdesktop/SystemAppearance.h"

#include <functional>
#include <utility>

namespace fadeloom {

/// Needs a QApplication. Thread: main.
class HomeDesktop {
public:
    /// Selects how to draw; call before creating the QApplication. Returns whether there is a display.
    [[nodiscard]] static bool prepare();

    HomeDesktop();
    HomeDesktop(const HomeDesktop&) = delete;
    HomeDesktop& operator=(const HomeDesktop&) = delete;

    [[nodiscard]] Application& application() { return application_; }
    [[nodiscard]] Dialogs& dialogs() { return dialogs_; }
    [[nodiscard]] QtTrayIcon& icon() { return icon_; }
    [[nodiscard]] const DesktopAppearance& appearance() const { return appearance_.appearance(); }
    /// Called whenever the desktop's appearance changes.
    void whenAppearanceChanges(std::function<void(const DesktopAppearance&)> changed)
    {
        appearanceChanged_ = std::move(changed);
    }
    /// Never called: a Linux session ends its programs with a signal, which is handled anyway.
    void whenSessionEnds(const std::function<void()>& /*ends*/) { }
    /// Called once it turns out that nobody shows the icon.
    void whenWithoutTray(std::function<void()> withoutTray) { withoutTray_ = std::move(withoutTray); }

private:
    void changeAppearance(const DesktopAppearance& appearance);

    std::function<void(const DesktopAppearance&)> appearanceChanged_ = [](const DesktopAppearance&) { };
    std::function<void()> withoutTray_ = [] { };
    QtApplication application_{[](auto) { }};  // The panel reads the choice from the settings.
    QtDialogs dialogs_;
    SystemAppearance appearance_{
        [this](const DesktopAppearance& appearance) { changeAppearance(appearance); }};
    QtTrayIcon icon_;
};

}  // namespace fadeloom
