// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"

#include "control/AudioController.h"
#include "platform/Application.h"
#include "platform/Popover.h"

#include <utility>

namespace fadeloom {

AppDelegate::AppDelegate(AudioController& controller, StatusItem& statusItem, Popover& popover,
    Application& application, Actions actions)
    : controller_(controller)
    , popover_(popover)
    , application_(application)
    , actions_(std::move(actions))
    , iconVolume_(controller, statusItem, actions_.translate)
{
    // Levels are measured only while they are visible.
    popover_.whenShown([this] { controller_.levels().setWanted(true); });
    popover_.whenClosed([this] { controller_.levels().setWanted(false); });
    statusItem.whenClicked([this] { togglePopover(); });
    statusItem.whenMenuOpens([this] { popover_.close(); });  // The menu would take the focus from it.
    statusItem.setMenu([this] { return menu(); });
    statusItem.show("Fadeloom");
}

void AppDelegate::togglePopover()
{
    if (popover_.isShown())
        popover_.close();
    else
        showPopover();
}

void AppDelegate::showPopover()
{
    application_.activate();
    popover_.setAnimated(controller_.state().settings->appearance.animations);
    popover_.show();
}

void AppDelegate::openMixer()
{
    actions_.showPage(Page::mixer);
    showPopover();
}

void AppDelegate::openSettings()
{
    actions_.showPage(Page::settings);
    showPopover();
}

StatusMenu AppDelegate::menu()
{
    const auto& translate = actions_.translate;
    const bool isLaunching = *controller_.state().launchAtLogin;
    StatusMenu entries = {
        {.title = translate("AppDelegate", "About Fadeloom"), .action = afterClosing(actions_.showAbout)},
        {},
        {.title = translate("AppDelegate", "Open Mixer"), .action = [this] { openMixer(); }, .isClick = true},
        {.title = translate("AppDelegate", "Settings…"), .action = [this] { openSettings(); }, .key = ","},
        {.title = translate("AppDelegate", "Launch at Login"),
            .action = [this] { controller_.setLaunchAtLogin(!*controller_.state().launchAtLogin); },
            .isChecked = isLaunching},
    };
    if (actions_.checkForUpdates)
        entries.push_back({.title = translate("AppDelegate", "Check for Updates…"),
            .action = afterClosing(actions_.checkForUpdates)});
    entries.push_back({});
    entries.push_back(
        {.title = translate("AppDelegate", "Quit Fadeloom"), .action = actions_.quit, .key = "q"});
    return entries;
}

// Some desktops show a menu fetched earlier, before the popover was open.
std::function<void()> AppDelegate::afterClosing(std::function<void()> action)
{
    return [this, action = std::move(action)] {
        popover_.close();
        action();
    };
}

}  // namespace fadeloom
