// SPDX-License-Identifier: MIT
// The controller's care for taps: one for each row, on the right output, and none for an app that is gone.
#include "control/AudioController.h"
#include "control/OutputChoice.h"
#include "control/TapTexts.h"
#include "platform/AudioSystem.h"

#include <ranges>
#include <utility>

namespace fadeloom {

void AudioController::ensureTaps()
{
    holdNewStreams();
    if (*state_.permission != AudioPermission::State::granted) {
        if (!taps_.empty())
            stopAllRecordings();
        taps_.clear();
        return;
    }
    const auto entries = *state_.apps;  // Of its own: whoever observes what follows may change the rows.
    for (const auto& entry : entries)
        ensureTap(entry);
}

void AudioController::ensureTap(const AppEntry& entry)
{
    const auto uid = outputUID(entry.bundleID);
    const auto* const found = uid ? findDevice(*state_.devices, *uid) : nullptr;
    if (!found)
        return;
    const OutputDevice device = *found;
    const auto tap = taps_.find(entry.bundleID);
    if (tap == taps_.end() || !adaptTap(*tap->second, entry, device))
        createTap(entry, device);
}

// Whether the tap serves the entry on the device, perhaps after a change of its processes.
bool AudioController::adaptTap(AppTap& tap, const AppEntry& entry, const OutputDevice& device)
{
    if (tap.outputUID() != device.uid || tap.outputID() != device.id)
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

void AudioController::createTap(const AppEntry& entry, const OutputDevice& device)
{
    const auto& id = entry.bundleID;
    const auto key = failureKey(entry.processIDs, device.uid);
    const auto failure = failed_.find(id);
    if (failure != failed_.end() && failure->second == key)
        return;

    auto& block = params_[id];
    if (!block)
        block = std::make_shared<TapParameters>();
    pushSettings(id);  // Before any audio flows.
    const auto old = taps_.find(id);
    const double oldRate = old == taps_.end() ? 0 : old->second->sampleRate();
    taps_.erase(id);  // Two taps of one app would mute each other's source.
    auto tap = AppTap::create(platform_.audio, entry.processIDs, device, block, entry.name);
    if (!tap) {
        stopRecording(id);
        const auto description = tap.error().description();
        failed_.insert_or_assign(id, key);
        state_.tapErrors.modify([&](auto& errors) { errors.insert_or_assign(id, description); });
        engineLog_.error("tap failed: " + id + ": " + description);
        return;
    }

    const auto& made = *taps_.emplace(id, std::move(*tap)).first->second;
    failed_.erase(id);
    pushSettings(id, made.sampleRate());
    engineLog_.notice(tapReadyText(id, made));
    if (state_.tapErrors->contains(id))
        state_.tapErrors.modify([&](auto& errors) { errors.erase(id); });
    // A file has one rate from its beginning to its end.
    if (oldRate != 0 && oldRate != made.sampleRate() && active_.contains(id)) {
        stopRecording(id);
        state_.errorMessage.assign(
            "Recording of " + entry.name + " stopped: the output device changed its sample rate.");
    }
}

void AudioController::removeTapsOfQuitApps(const AppGroups& groups)
{
    for (auto tap = taps_.begin(); tap != taps_.end();) {
        if (groups.contains(tap->first)) {
            ++tap;
            continue;
        }
        const auto id = tap->first;
        stopRecording(id);
        tap = taps_.erase(tap);
        audioConfirmed_.erase(id);
        engineLog_.notice("tap removed (app quit): " + id);
    }
}

const TapParameters* AudioController::parametersOf(const std::string& bundleID) const
{
    const auto block = params_.find(bundleID);
    return block == params_.end() ? nullptr : block->second.get();
}

const AppTap* AudioController::tapOf(const std::string& bundleID) const
{
    const auto tap = taps_.find(bundleID);
    return tap == taps_.end() ? nullptr : tap->second.get();
}

std::map<std::string, float> AudioController::takePeaks()
{
    std::map<std::string, float> peaks;
    for (const auto& [id, block] : params_)
        peaks.emplace(id, block->takePeak());
    return peaks;
}

}  // namespace fadeloom
