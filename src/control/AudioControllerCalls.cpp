// SPDX-License-Identifier: MIT
// Call handling of the controller: ducks the other apps during a call.
#include "control/AudioController.h"
#include "control/CallDucking.h"

#include <utility>

namespace fadeloom {

void AudioController::updateFocus()
{
    // Copied, because observers of the first assignment may change the source of the second.
    auto offers = callOffers(*state_.apps, state_.settings->focus, *state_.callOffers);
    state_.callOffers.assignIfDifferent(std::move(offers));
    if (state_.callApp.assignIfDifferent(appOnCall(*state_.apps, state_.settings->focus)))
        pushAllSettings();
}

std::vector<std::string> AudioController::callIDsOf(const std::string& bundleID) const
{
    const auto app = tracked_.find(bundleID);
    return app == tracked_.end() ? platform_.callApps.identifiersOf(bundleID) : app->second.callIDs;
}

void AudioController::addCallApp(const std::string& bundleID)
{
    editSettings([&](SettingsData& settings) { fadeloom::addCallApp(settings.focus, callIDsOf(bundleID)); });
}

void AudioController::removeCallApp(const std::string& bundleID)
{
    editSettings(
        [&](SettingsData& settings) { fadeloom::removeCallApp(settings.focus, callIDsOf(bundleID)); });
}

void AudioController::resetCallApps()
{
    editSettings([&](SettingsData& settings) {
        settings.focus.callApps = defaultCallApps(platform_.callApps).current;
        settings.focus.declinedCallApps.clear();
    });
}

}  // namespace fadeloom
