// SPDX-License-Identifier: MIT
// The windows of the program on macOS: the item in the menu bar, the popover with the panel, dialogs, the look.
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
    /// `lookChanged` is called whenever windows are drawn dark or light from now on.
    explicit DesktopMacOS(std::function<void(bool isDark)> lookChanged)
        : look_(std::move(lookChanged))
    {
    }
    DesktopMacOS(const DesktopMacOS&) = delete;
    DesktopMacOS& operator=(const DesktopMacOS&) = delete;

    [[nodiscard]] Application& application() { return application_; }
    [[nodiscard]] Dialogs& dialogs() { return dialogs_; }
    [[nodiscard]] StatusItem& icon() { return icon_; }
    [[nodiscard]] Popover& popover() { return popover_; }
    [[nodiscard]] bool isDark() const { return look_.isDark(); }
    /// Shows this in the popover; its implicit size is the panel's.
    void setContent(std::unique_ptr<QQuickItem> content) { panel_.emplace(popover_, std::move(content)); }

private:
    AppKitApplication application_;
    AppKitDialogs dialogs_;
    AppearanceWatch look_;
    MenuBarItem icon_;
    AppKitPopover popover_{icon_};
    std::optional<PanelMacOS> panel_;
};

}  // namespace fadeloom
