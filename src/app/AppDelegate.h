// SPDX-License-Identifier: MIT
// The behaviour of the status icon, its menu and the popover.
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
    /// The pages of the popover.
    enum class Page { mixer, settings };
    /// Actions outside of the icon and the popover.
    struct Actions {
        std::function<void(Page page)> showPage;
        std::function<void()> checkForUpdates = nullptr;  // If null, the menu does not offer it.
        std::function<void()> showAbout;
        std::function<void()> quit;
        Translate translate = [](const char*, const char* text) { return std::string(text); };
    };

    /// Shows the icon. All arguments must outlive this.
    AppDelegate(AudioController& controller, StatusItem& statusItem, Popover& popover,
        Application& application, Actions actions);
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;

    /// Opens the popover on its current page, and gives it the keyboard focus.
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
