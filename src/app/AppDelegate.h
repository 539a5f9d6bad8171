// SPDX-License-Identifier: MIT
// What the status icon, its menu and the popover do.
#pragma once

#include "platform/StatusItem.h"

#include <functional>
#include <string_view>

namespace fadeloom {

class Application;
class AudioController;
class Popover;

/// Thread: main.
class AppDelegate {
public:
    /// What lies beyond the icon and the popover.
    struct Actions {
        std::function<void(bool isSettings)> showPage;  // In the popover: the settings, or the mixer.
        std::function<void()> checkForUpdates = nullptr;  // Without it the menu does not offer that.
        std::function<void()> showAbout;
        std::function<void()> quit;
        /// A text of the interface in the user's language, by its English form.
        std::function<std::string(std::string_view)> translate = [](auto text) { return std::string(text); };
    };

    /// Shows the icon. All must outlive this.
    AppDelegate(AudioController& controller, StatusItem& statusItem, Popover& popover,
        Application& application, Actions actions);
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;

    /// Opens the popover as it is, with the keyboard in it.
    void showPopover();
    void openMixer();
    void openSettings();

private:
    void togglePopover();
    [[nodiscard]] StatusMenu menu();

    AudioController& controller_;
    Popover& popover_;
    Application& application_;
    Actions actions_;
};

}  // namespace fadeloom
