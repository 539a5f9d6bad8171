// SPDX-License-Identifier: MIT
// The program on macOS: its item in the menu bar, dialogs, the look; and the popover with the panel.
#pragma once

#include "app/PanelMacOS.h"
#include "platform/macos/AppKitApplication.h"
#include "platform/macos/AppKitDialogs.h"
#include "platform/macos/AppKitPopover.h"
#include "platform/macos/AppearanceWatch.h"
#include "platform/macos/MenuBarItem.h"

#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace fadeloom {

/// Needs a QGuiApplication. Thread: main.
class DesktopMacOS {
public:
    /// Before the application object. Says whether there is a display to draw on.
    [[nodiscard]] static bool prepare() { return true; }

    DesktopMacOS() = default;
    DesktopMacOS(const DesktopMacOS&) = delete;
    DesktopMacOS& operator=(const DesktopMacOS&) = delete;

    [[nodiscard]] Application& application() { return application_; }
    [[nodiscard]] Dialogs& dialogs() { return dialogs_; }
    [[nodiscard]] MenuBarItem& icon() { return icon_; }
    [[nodiscard]] bool isDark() const { return look_.isDark(); }
    /// Called from now on whenever windows are to be drawn dark or light.
    void whenLookChanges(std::function<void(bool isDark)> changed) { lookChanged_ = std::move(changed); }

private:
    std::function<void(bool)> lookChanged_ = [](bool) { };
    AppKitApplication application_;
    AppKitDialogs dialogs_;
    AppearanceWatch look_{[this](bool isDark) { lookChanged_(isDark); }};
    MenuBarItem icon_;
};

/// The panel in the popover below the item in the menu bar. Thread: main.
class PopoverMacOS {
public:
    /// `desktop` must outlive this.
    explicit PopoverMacOS(DesktopMacOS& desktop)
        : popover_(desktop.icon())
    {
    }
    PopoverMacOS(const PopoverMacOS&) = delete;
    PopoverMacOS& operator=(const PopoverMacOS&) = delete;

    [[nodiscard]] Popover& popover() { return popover_; }
    /// What it shows; its implicit size is the panel's.
    void setContent(const std::function<std::unique_ptr<QQuickItem>()>& make)
    {
        if (auto content = make())
            panel_.emplace(popover_, std::move(content));
    }

private:
    AppKitPopover popover_;
    std::optional<PanelMacOS> panel_;
};

}  // namespace fadeloom
