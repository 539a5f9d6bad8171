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
{
    // Nothing is measured while nobody can see it.
    popover_.whenShown([this] { controller_.levels().setWanted(true); });
    popover_.whenClosed([this] { controller_.levels().setWanted(false); });
    statusItem.whenClicked([this] { togglePopover(); });
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
    actions_.showPage(false);
    showPopover();
}

void AppDelegate::openSettings()
{
    actions_.showPage(true);
    showPopover();
}

StatusMenu AppDelegate::menu()
{
    popover_.close();  // The menu would take the keyboard from it.
    const auto& text = actions_.translate;
    const bool isLaunching = *controller_.state().launchAtLogin;
    StatusMenu entries = {
        {.title = text("About Fadeloom"), .action = actions_.showAbout},
        {},
        {.title = text("Open Mixer"), .action = [this] { openMixer(); }},
        {.title = text("Settings…"), .action = [this] { openSettings(); }, .key = ","},
        {.title = text("Launch at Login"),
            .action = [this] { controller_.setLaunchAtLogin(!*controller_.state().launchAtLogin); },
            .isChecked = isLaunching},
    };
    if (actions_.checkForUpdates)
        entries.push_back({.title = text("Check for Updates…"), .action = actions_.checkForUpdates});
    entries.push_back({});
    entries.push_back({.title = text("Quit Fadeloom"), .action = actions_.quit, .key = "q"});
    return entries;
}

}  // namespace fadeloom
