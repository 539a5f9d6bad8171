// SPDX-License-Identifier: MIT
// Settings of the controller: applies them to the audio, and saves them.
#include "control/AppSettings.h"
#include "control/AudioController.h"
#include "control/CallDucking.h"
#include "control/OutputChoice.h"
#include "control/TapValues.h"

#include <algorithm>
#include <utility>

namespace fadeloom {

void AudioController::setSettings(SettingsData settings)
{
    const SettingsData old = state_.settings.exchange(std::move(settings));
    if (*state_.settings != old)
        settingsChanged(old);
}

void AudioController::editSettings(const std::function<void(SettingsData&)>& change)
{
    auto settings = *state_.settings;
    change(settings);
    setSettings(std::move(settings));
}

void AudioController::editApp(
    const std::string& bundleID, const std::function<void(AppAudioSettings&)>& change)
{
    editSettings([&](SettingsData& settings) {
        auto app = appSettings(settings, bundleID);
        change(app);
        storeAppSettings(settings, bundleID, app);
    });
}

void AudioController::settingsChanged(const SettingsData& old)
{
    std::vector<std::string> ids;  // Copied, because observers may change what is tracked.
    for (const auto& [id, app] : tracked_) {
        if (app.parameters)
            ids.push_back(id);
    }
    for (const auto& id : ids)
        appSettingsChanged(id, old);

    if (state_.settings->focus != old.focus) {
        updateFocus();
        if (*state_.callApp)
            pushAllSettings();  // The same call may now duck other apps, or to another level.
    }
    if (state_.settings->appearance != old.appearance)
        applyAppearance();
    if (state_.settings->volumeLimit < old.volumeLimit)
        lowerVolumesToLimit();
    if (state_.settings->volumeLimit != old.volumeLimit
        || state_.settings->eqAutoHeadroom != old.eqAutoHeadroom)
        pushAllSettings();
    holdNewStreams();
    if (isSaving_)
        saver_.schedule(*state_.settings);
}

void AudioController::appSettingsChanged(const std::string& bundleID, const SettingsData& old)
{
    const auto entryIn = [&](const SettingsData& settings) {
        const auto app = settings.apps.find(bundleID);
        return app == settings.apps.end() ? std::nullopt : std::optional(app->second);
    };
    if (entryIn(old) == entryIn(*state_.settings))
        return;
    pushSettings(bundleID);
    if (chosenOutputUID(old, bundleID) == chosenOutputUID(*state_.settings, bundleID))
        return;

    // Routed elsewhere: a tap that failed on the old output may succeed.
    if (const auto app = tracked_.find(bundleID); app != tracked_.end())
        app->second.failures.clear();
    const auto entry = std::ranges::find(*state_.apps, bundleID, &AppEntry::bundleID);
    if (entry != state_.apps->end())
        ensureTap(AppEntry(*entry));
    schedulePoll();
}

void AudioController::lowerVolumesToLimit()
{
    SettingsData lowered = *state_.settings;
    for (auto& [id, app] : lowered.apps)
        app.volume = std::min(app.volume, lowered.volumeLimit);
    if (lowered != *state_.settings)
        setSettings(std::move(lowered));
}

void AudioController::pushSettings(const std::string& bundleID, std::optional<double> sampleRate)
{
    const auto tracked = tracked_.find(bundleID);
    if (tracked == tracked_.end() || !tracked->second.parameters)
        return;
    auto& parameters = *tracked->second.parameters;
    const auto app = appSettings(*state_.settings, bundleID);
    const float duck = duckFactor(state_.settings->focus, *state_.callApp, callIDsOf(bundleID));
    store(tapValues(*state_.settings, app, isOutputMissing(bundleID), duck), parameters);

    if (const auto* const tap = tracked->second.firstTap(); !sampleRate && tap)
        sampleRate = tap->sampleRate();
    // Even while the equalizer is off, so that switching it on only takes a flag.
    if (sampleRate)
        parameters.setEQ(eqCoefficients(app.eqGains, *sampleRate));
}

void AudioController::holdNewStreams()
{
    const bool isGranted = *state_.permission == AudioPermission::State::granted;
    platform_.audio.holdStreamsOf(isGranted ? appsToHold(*state_.settings) : std::set<std::string>{});
}

void AudioController::pushAllSettings()
{
    for (const auto& [id, app] : tracked_)
        pushSettings(id);
}

}  // namespace fadeloom
