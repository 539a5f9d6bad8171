// SPDX-License-Identifier: MIT
// Desktop integration of the controller: start at login, and the windows' appearance.
#include "control/AudioController.h"
#include "platform/Application.h"
#include "platform/LoginItem.h"

namespace fadeloom {
namespace {

Application::Appearance appearanceOf(Theme theme)
{
    switch (theme) {
    case Theme::light:
        return Application::Appearance::light;
    case Theme::dark:
        return Application::Appearance::dark;
    case Theme::system:
        break;
    }
    return Application::Appearance::system;
}

}  // namespace

Outcome AudioController::setLaunchAtLogin(bool isWanted)
{
    if (isWanted == *state_.launchAtLogin)
        return {};
    auto& loginItem = platform_.loginItem;
    const auto changed = isWanted ? loginItem.registerItem() : loginItem.unregisterItem();
    Outcome outcome;
    if (!changed)
        outcome = failed(LoginItemRefused{changed.error()});
    // Assigned even if unchanged: a switch that the user moved must move back.
    state_.launchAtLogin.assign(loginItem.status() == LoginItem::Status::enabled);
    return outcome;
}

void AudioController::applyAppearance()
{
    const auto& appearance = state_.settings->appearance;
    if (platform_.application)
        platform_.application->setAppearance(appearanceOf(appearance.theme));
    levels_.setEnabled(appearance.levelMeters);
}

}  // namespace fadeloom
