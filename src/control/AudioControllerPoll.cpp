// SPDX-License-Identifier: MIT
// The controller's regular poll: from audio processes to the mixer's rows.
#include "control/AppResolver.h"
#include "control/AudioController.h"

#include "platform/AudioSystem.h"
#include "platform/Workspace.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace fadeloom {

namespace {

/// Those of `entries` that have become unreachable, or for another reason, since `former`.
std::string describeOutOfReach(const std::vector<AppEntry>& entries, const std::vector<AppEntry>& former)
{
    std::string text;
    for (const auto& entry : entries) {
        const auto known = std::ranges::find(former, entry.bundleID, &AppEntry::bundleID);
        if (!entry.outOfReach || (known != former.end() && known->outOfReach == entry.outOfReach))
            continue;
        text += (text.empty() ? "" : "; ") + entry.bundleID
            + (*entry.outOfReach == OutOfReach::fixed ? ", its stream is tied to its device"
                                                      : ", another program keeps moving its stream");
    }
    return text;
}

}  // namespace

void AudioController::poll()
{
    if (isDemo_)
        return;
    updatePermission();
    const auto processes =
        platform_.audio.processes(state_.settings->focus.enabled ? ReadMic::yes : ReadMic::no);
    const auto groups = grouper_.group(processes);

    trackPlayingApps(groups);
    updateApps(groups);
    forgetQuitApps(groups);
    updateMissingOutput();
    confirmAudio();
    updateFocus();
    ensureTaps();
}

void AudioController::updatePermission()
{
    const auto state = audioPermission_.current();
    if (state == *state_.permission)
        return;
    engineLog_.notice("permission: " + std::string(AudioPermission::name(state)));
    for (auto& [id, app] : tracked_)
        app.failures.clear();  // With another permission the result may differ.
    state_.permission.assign(state);
}

void AudioController::trackPlayingApps(const AppGroups& groups)
{
    for (const auto& [id, group] : groups) {
        if (!group.isPlaying())
            continue;
        const auto [app, isNew] = tracked_.try_emplace(id);
        if (!isNew)
            continue;
        app->second.callIDs = platform_.callApps.identifiersOf(id);
        findIcon(id, group);
    }
}

void AudioController::findIcon(const std::string& bundleID, const AppGroup& group)
{
    platform_.workspace.findIcon(group.owner, life_.whileAlive([this, bundleID](const AppIcon& found) {
        if (const auto app = tracked_.find(bundleID); app != tracked_.end())
            app->second.icon = found;
        auto entries = *state_.apps;
        for (auto& entry : entries)
            if (entry.bundleID == bundleID)
                entry.icon = found;
        state_.apps.assignIfDifferent(std::move(entries));
    }));
}

void AudioController::updateApps(const AppGroups& groups)
{
    std::vector<AppEntry> entries;
    for (const auto& [id, group] : groups) {
        if (tracked_.contains(id))
            entries.push_back(makeEntry(id, group));
    }
    if (const auto lost = describeOutOfReach(entries, *state_.apps); !lost.empty())
        engineLog_.notice("out of reach: " + lost);
    rememberNames(entries);
    if (state_.apps.assignIfDifferent(inDisplayOrder(std::move(entries), platform_.text)))
        engineLog_.notice("apps: " + describe(*state_.apps));
}

AppEntry AudioController::makeEntry(const std::string& bundleID, const AppGroup& group) const
{
    const auto& app = tracked_.at(bundleID);
    return {
        .bundleID = bundleID,
        .name = group.owner.localizedName.value_or(bundleID),
        .icon = app.icon,
        .isPlaying = group.isPlaying(),
        .isUsingMic = group.isUsingMic(),
        .callIDs = app.callIDs,
        .processIDs = group.processIDs(),
        .ownOutputs = group.ownOutputs(),
        .outOfReach = group.outOfReach(),
    };
}

void AudioController::rememberNames(const std::vector<AppEntry>& entries)
{
    // In one assignment: one per name would copy the whole record each time.
    std::optional<SettingsData> changed;
    for (const auto& entry : entries) {
        const auto known = state_.settings->knownAppNames.find(entry.bundleID);
        if (known != state_.settings->knownAppNames.end() && known->second == entry.name)
            continue;
        if (!changed)
            changed = *state_.settings;
        changed->knownAppNames.insert_or_assign(entry.bundleID, entry.name);
    }
    if (changed)
        setSettings(std::move(*changed));
}

void AudioController::forgetQuitApps(const AppGroups& groups)
{
    const auto hasQuit = [&](const auto& item) { return !groups.contains(item.first); };
    for (auto tracked = tracked_.begin(); tracked != tracked_.end();) {
        auto& [id, app] = *tracked;
        if (!hasQuit(*tracked)) {
            ++tracked;
            continue;
        }
        const bool wasRecorded = recordings_.contains(id);
        stopRecording(id);
        const bool wasTapped = !app.taps.empty();
        app.taps.clear();
        if (wasTapped)
            engineLog_.notice("tap removed (app quit): " + id);
        if (wasRecorded) {
            // It counts as having played until the next poll.
            app = {.icon = app.icon, .callIDs = app.callIDs};
            ++tracked;
        } else {
            tracked = tracked_.erase(tracked);
        }
    }

    auto errors = *state_.tapErrors;
    if (std::erase_if(errors, hasQuit) > 0)
        state_.tapErrors.assign(std::move(errors));
}

void AudioController::confirmAudio()
{
    for (auto& [id, app] : tracked_) {
        if (!app.taps.empty() && !app.isAudioConfirmed
            && app.parameters->audioSeen.load(std::memory_order_relaxed)) {
            app.isAudioConfirmed = true;
            engineLog_.notice("audio flowing through tap: " + id);
        }
    }
}

std::optional<std::string> AudioController::appOfProcess(ProcessID process) const
{
    // Key repeat requests the same one again and again.
    const auto* const known = grouper_.knownOwner(process);
    const auto owner =
        known != nullptr ? *known : AppResolver(platform_.workspace).owningApp(process, "", {});
    const bool isInMixer = owner && owner->bundleID
        && std::ranges::find(*state_.apps, *owner->bundleID, &AppEntry::bundleID) != state_.apps->end();
    return isInMixer ? owner->bundleID : std::nullopt;
}

}  // namespace fadeloom
