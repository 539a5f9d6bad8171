// SPDX-License-Identifier: MIT
// The program on a Linux desktop: its icon in the tray, dialogs, the look; and the panel beside the icon.
#pragma once

#include "platform/qtdesktop/QtApplication.h"
#include "platform/qtdesktop/QtDialogs.h"
#include "platform/qtdesktop/QtPopover.h"
#include "platform/qtdesktop/QtTrayIcon.h"
#include "platform/qtdesktop/SystemLook.h"

#include <functional>
#include <utility>

namespace fadeloom {

/// Needs a QApplication. Thread: main.
class DesktopLinux {
public:
    /// Before the QApplication: how it draws. Says whether there is a display to draw on.
    [[nodiscard]] static bool prepare();

    DesktopLinux();
    DesktopLinux(const DesktopLinux&) = delete;
    DesktopLinux& operator=(const DesktopLinux&) = delete;

    [[nodiscard]] Application& application() { return application_; }
    [[nodiscard]] Dialogs& dialogs() { return dialogs_; }
    [[nodiscard]] QtTrayIcon& icon() { return icon_; }
    [[nodiscard]] bool isDark() const { return look_.isDark(); }
    /// Called from now on whenever windows are to be drawn dark or light.
    void whenLookChanges(std::function<void(bool isDark)> changed) { lookChanged_ = std::move(changed); }
    /// Called once it turns out that nobody shows the icon.
    void whenWithoutTray(std::function<void()> withoutTray) { withoutTray_ = std::move(withoutTray); }

private:
    std::function<void(bool)> lookChanged_ = [](bool) { };
    std::function<void()> withoutTray_ = [] { };
    QtApplication application_{[](auto) { }};  // The panel reads the choice from the settings.
    QtDialogs dialogs_;
    SystemLook look_{[this](bool isDark) { lookChanged_(isDark); }};
    QtTrayIcon icon_;
};

/// Thread: main.
class PanelLinux {
public:
    /// `desktop` must outlive this.
    explicit PanelLinux(DesktopLinux& desktop);
    PanelLinux(const PanelLinux&) = delete;
    PanelLinux& operator=(const PanelLinux&) = delete;
    ~PanelLinux();

    [[nodiscard]] Popover& popover() { return popover_; }
    /// What it shows, made when it opens for the first time; its implicit size is the panel's.
    void setContent(QtPopover::MakeContent make) { popover_.setContent(std::move(make)); }

private:
    void beOrdinary();

    DesktopLinux& desktop_;
    QtPopover popover_;
};

}  // namespace fadeloom
