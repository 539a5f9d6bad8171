// SPDX-License-Identifier: MIT
// Taps of the controller: one for each row, on the right output, and none for an app that is gone.
#include "control/AudioController.h"
#include "control/OutputChoice.h"
#include "control/TapTexts.h"
#include "platform/AudioSystem.h"

#include <algorithm>
#include <utility>

namespace fadeloom {

void AudioController::ensureTaps()
{
    holdNewStreams();
    if (*state_.permission != AudioPermission::State::granted) {
        stopAllRecordings();
        for (auto& [id, app] : tracked_)
            app.taps.clear();
        return;
    }
    const auto entries = *state_.apps;  // Copied, because observers may change the rows.
    for (const auto& entry : entries)
        ensureTap(entry);
}

void AudioController::retryTap(const std::string& bundleID)
{
    if (const auto app = tracked_.find(bundleID); app != tracked_.end())
        app->second.failures.clear();
    poll();
}

void AudioController::ensureTap(const AppEntry& entry)
{
    const auto devices = outputs(entry.bundleID);
    const auto tracked = tracked_.find(entry.bundleID);
    if (tracked == tracked_.end() || isShutDown_ || *state_.permission != AudioPermission::State::granted
        || devices.empty())
        return;
    auto& app = tracked->second;
    const auto scope = devices.size() > 1 ? TapScope::streamsOfOutput : TapScope::everyStream;

    auto former = std::exchange(app.taps, {});
    for (const auto& device : devices) {
        const auto tap = former.find(device.uid);
        if (tap != former.end() && adaptTap(*tap->second, entry, device, scope))
            app.taps.insert(former.extract(tap));
    }
    const double formerRate = former.empty() ? 0 : former.begin()->second->sampleRate();
    // Two taps of one app on one output would mute each other's source: remove obsolete ones first.
    former.clear();
    for (const auto& device : devices) {
        const auto still = tracked_.find(entry.bundleID);  // Observers of a failure may poll.
        if (still != tracked_.end() && !still->second.taps.contains(device.uid))
            createTap(still->second, entry, device, scope, formerRate);
    }
}

// Whether the tap is suitable for the entry on the device, possibly after changing its processes.
bool AudioController::adaptTap(AppTap& tap, const AppEntry& entry, const OutputDevice& device, TapScope scope)
{
    if (!tap.isRunning() || tap.outputID() != device.id || tap.scope() != scope)
        return false;
    const double rate = platform_.audio.sampleRate(device.id);
    if (rate > 0 && rate != tap.sampleRate())
        return false;
    if (tap.processIDs() == entry.processIDs)
        return true;
    if (!tap.update(entry.processIDs))
        return false;
    engineLog_.notice(tapUpdatedText(entry.bundleID, tap));
    return true;
}

// A refused tap is retried once the device or its rate differs.
FailedTap AudioController::attemptOf(const AppEntry& entry, const OutputDevice& device) const
{
    return {.key = failureKey(entry.processIDs, device.uid),
        .device = device.id,
        .rate = platform_.audio.sampleRate(device.id)};
}

void AudioController::createTap(
    TrackedApp& app, const AppEntry& entry, const OutputDevice& device, TapScope scope, double formerRate)
{
    if (app.isRefused(device.uid, attemptOf(entry, device)))
        return;
    const auto& id = entry.bundleID;
    if (!app.parameters)
        app.parameters = std::make_shared<TapParameters>();
    pushSettings(id);  // Before any audio flows.
    auto tap = AppTap::create(platform_.audio, entry.processIDs, device, scope, app.parameters, entry.name);
    if (!tap) {
        tapFailed(app, entry, device, tap.error());
        return;
    }
    const auto& made = *app.taps.emplace(device.uid, std::move(*tap)).first->second;
    pushSettings(id, made.sampleRate());
    engineLog_.notice(tapReadyText(id, made));
    tapMade(app, entry, made, formerRate);
}

void AudioController::tapFailed(
    TrackedApp& app, const AppEntry& entry, const OutputDevice& device, const TapError& error)
{
    const auto& id = entry.bundleID;
    app.failures.insert_or_assign(device.uid, attemptOf(entry, device));
    if (app.taps.empty())
        stopRecording(id);
    state_.tapErrors.modify([&](auto& errors) { errors.insert_or_assign(id, error); });
    engineLog_.error("tap failed: " + id + ": " + error.description());
}

void AudioController::tapMade(TrackedApp& app, const AppEntry& entry, const AppTap& tap, double formerRate)
{
    const auto& id = entry.bundleID;
    const double rate = tap.sampleRate();
    app.failures.erase(tap.outputUID());
    if (app.failures.empty() && state_.tapErrors->contains(id))
        state_.tapErrors.modify([&](auto& errors) { errors.erase(id); });
    // A file has a single rate.
    if (formerRate != 0 && formerRate != rate && recordings_.contains(id)) {
        stopRecording(id);
        state_.error.assign(RecordingRateChanged{entry.name});
    }
}

const TapParameters* AudioController::parametersOf(const std::string& bundleID) const
{
    const auto app = tracked_.find(bundleID);
    return app == tracked_.end() ? nullptr : app->second.parameters.get();
}

const AppTap* AudioController::tapOf(const std::string& bundleID) const
{
    const auto app = tracked_.find(bundleID);
    return app == tracked_.end() ? nullptr : app->second.firstTap();
}

std::map<std::string, float> AudioController::takePeaks()
{
    std::map<std::string, float> peaks;
    for (const auto& [id, app] : tracked_) {
        if (app.parameters)
            peaks.emplace(id, app.parameters->takePeak());
    }
    return peaks;
}

}  // namespace fadeloom
