// SPDX-License-Identifier: MIT
// The program on a Linux desktop: its icon in the tray, dialogs, the look.
#pragma once

#include "platform/qtdesktop/QtApplication.h"
#include "platform/qtdesktop/QtDialogs.h"
#include "platform/qtdesktop/QtTrayIcon.h"
#include "platform/qtdesktop/SystemLook.h"

#include <functional>
#include <utility>

namespace fadeloom {

/// Needs a QApplication. Thread: main.
class HomeDesktop {
public:
    /// Before the QApplication: how it draws. Says whether there is a display to draw on.
    [[nodiscard]] static bool prepare();

    HomeDesktop();
    HomeDesktop(const HomeDesktop&) = delete;
    HomeDesktop& operator=(const HomeDesktop&) = delete;

    [[nodiscard]] Application& application() { return application_; }
    [[nodiscard]] Dialogs& dialogs() { return dialogs_; }
    [[nodiscard]] QtTrayIcon& icon() { return icon_; }
    [[nodiscard]] const DesktopLook& look() const { return look_.look(); }
    /// Called from now on whenever windows are to look otherwise.
    void whenLookChanges(std::function<void(const DesktopLook&)> changed)
    {
        lookChanged_ = std::move(changed);
    }
    /// Never called: a session on Linux ends its programs by a signal, which they are asked by anyway.
    void whenSessionEnds(const std::function<void()>& /*ends*/) { }
    /// Called once it turns out that nobody shows the icon.
    void whenWithoutTray(std::function<void()> withoutTray) { withoutTray_ = std::move(withoutTray); }

private:
    void changeLook(const DesktopLook& look);

    std::function<void(const DesktopLook&)> lookChanged_ = [](const DesktopLook&) { };
    std::function<void()> withoutTray_ = [] { };
    QtApplication application_{[](auto) { }};  // The panel reads the choice from the settings.
    QtDialogs dialogs_;
    SystemLook look_{[this](const DesktopLook& look) { changeLook(look); }};
    QtTrayIcon icon_;
};

}  // namespace fadeloom
