// SPDX-License-Identifier: MIT
// What the status icon, its menu and the popover do.
#pragma once

#include "app/IconVolume.h"
#include "platform/StatusItem.h"
#include "shell/Translate.h"

#include <functional>

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
        Translate translate = [](const char*, const char* text) { return std::string(text); };
    };

    /// Shows the icon. All must outlive this.
    AppDelegate(AudioController& controller, StatusItem& statusItem, Popover& popover,
        Application& application, Actions actions);
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;

    /// Opens the popover as it is, with the keyboard in it.
    void showPopover();
    void togglePopover();
    void openMixer();
    void openSettings();

private:
    [[nodiscard]] StatusMenu menu();
    [[nodiscard]] std::function<void()> afterClosing(std::function<void()> action);

    AudioController& controller_;
    Popover& popover_;
    Application& application_;
    Actions actions_;
    IconVolume iconVolume_;
};

}  // namespace fadeloom
