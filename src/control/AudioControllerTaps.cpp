// SPDX-License-Identifier: MIT
// The controller's care for taps: one for each row, on the right output, and none for an app that is gone.
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
        if (!taps_.empty())
            stopAllRecordings();
        taps_.clear();
        return;
    }
    const auto entries = *state_.apps;  // Of its own: whoever observes what follows may change the rows.
    for (const auto& entry : entries)
        ensureTap(entry);
}

void AudioController::retryTap(const std::string& bundleID)
{
    failed_.erase(bundleID);
    poll();
}

void AudioController::ensureTap(const AppEntry& entry)
{
    const auto devices = outputs(entry.bundleID);
    if (isShutDown_ || *state_.permission != AudioPermission::State::granted || devices.empty())
        return;
    const auto scope = devices.size() > 1 ? TapScope::streamsOfOutput : TapScope::everyStream;

    auto former = taps_.extract(entry.bundleID);
    OutputTaps kept;
    for (const auto& device : devices) {
        const auto tap = former ? former.mapped().find(device.uid) : OutputTaps::iterator{};
        if (former && tap != former.mapped().end() && adaptTap(*tap->second, entry, device, scope))
            kept.insert(former.mapped().extract(tap));
    }
    const double formerRate =
        former && !former.mapped().empty() ? former.mapped().begin()->second->sampleRate() : 0;
    // Two taps of one app on one output would mute each other's source: what is not kept goes first.
    former = {};
    if (!kept.empty())
        taps_.emplace(entry.bundleID, std::move(kept));
    for (const auto& device : devices) {
        if (tapOn(entry.bundleID, device.uid) == nullptr)
            createTap(entry, device, scope, formerRate);
    }
}

// Whether the tap serves the entry on the device, perhaps after a change of its processes.
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

// What was refused is tried again once the device or its rate is another one.
bool AudioController::wasRefused(const AppEntry& entry, const OutputDevice& device) const
{
    const auto failures = failed_.find(entry.bundleID);
    if (failures == failed_.end())
        return false;
    const auto failure = failures->second.find(device.uid);
    return failure != failures->second.end() && failure->second == failureOf(entry, device);
}

FailedTap AudioController::failureOf(const AppEntry& entry, const OutputDevice& device) const
{
    return {.key = failureKey(entry.processIDs, device.uid),
        .device = device.id,
        .rate = platform_.audio.sampleRate(device.id)};
}

void AudioController::createTap(
    const AppEntry& entry, const OutputDevice& device, TapScope scope, double formerRate)
{
    if (wasRefused(entry, device))
        return;
    const auto& id = entry.bundleID;
    auto& block = params_[id];
    if (!block)
        block = std::make_shared<TapParameters>();
    pushSettings(id);  // Before any audio flows.
    auto tap = AppTap::create(platform_.audio, entry.processIDs, device, scope, block, entry.name);
    if (!tap) {
        tapFailed(entry, device, tap.error());
        return;
    }
    const auto& made = *taps_[id].emplace(device.uid, std::move(*tap)).first->second;
    pushSettings(id, made.sampleRate());
    engineLog_.notice(tapReadyText(id, made));
    tapMade(entry, made, formerRate);
}

void AudioController::tapFailed(const AppEntry& entry, const OutputDevice& device, const TapError& error)
{
    const auto& id = entry.bundleID;
    if (!taps_.contains(id))
        stopRecording(id);
    failed_[id].insert_or_assign(device.uid, failureOf(entry, device));
    state_.tapErrors.modify([&](auto& errors) { errors.insert_or_assign(id, error); });
    engineLog_.error("tap failed: " + id + ": " + error.description());
}

void AudioController::tapMade(const AppEntry& entry, const AppTap& tap, double formerRate)
{
    const auto& id = entry.bundleID;
    if (const auto failures = failed_.find(id); failures != failed_.end()) {
        failures->second.erase(tap.outputUID());
        if (failures->second.empty())
            failed_.erase(failures);
    }
    if (!failed_.contains(id) && state_.tapErrors->contains(id))
        state_.tapErrors.modify([&](auto& errors) { errors.erase(id); });
    // A file has one rate from its beginning to its end.
    if (formerRate != 0 && formerRate != tap.sampleRate() && recordings_.contains(id)) {
        stopRecording(id);
        state_.error.assign(RecordingRateChanged{entry.name});
    }
}

void AudioController::removeTapsOfQuitApps(const AppGroups& groups)
{
    for (auto taps = taps_.begin(); taps != taps_.end();) {
        if (groups.contains(taps->first)) {
            ++taps;
            continue;
        }
        const auto id = taps->first;
        stopRecording(id);
        taps = taps_.erase(taps);
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
    const auto taps = tapsOf(bundleID);
    return taps.empty() ? nullptr : taps.front();
}

const AppTap* AudioController::tapOn(const std::string& bundleID, const std::string& outputUID) const
{
    const auto taps = tapsOf(bundleID);
    const auto tap = std::ranges::find(taps, outputUID, &AppTap::outputUID);
    return tap == taps.end() ? nullptr : *tap;
}

std::vector<const AppTap*> AudioController::tapsOf(const std::string& bundleID) const
{
    std::vector<const AppTap*> taps;
    if (const auto found = taps_.find(bundleID); found != taps_.end()) {
        for (const auto& [uid, tap] : found->second)
            taps.push_back(tap.get());
    }
    return taps;
}

std::map<std::string, float> AudioController::takePeaks()
{
    std::map<std::string, float> peaks;
    for (const auto& [id, block] : params_)
        peaks.emplace(id, block->takePeak());
    return peaks;
}

}  // namespace fadeloom
