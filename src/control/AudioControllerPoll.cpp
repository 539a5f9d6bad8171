// SPDX-License-Identifier: MIT
// The controller's regular look at the world: from audio processes to the mixer's rows.
#include "control/AppResolver.h"
#include "control/AudioController.h"

#include "platform/AudioSystem.h"
#include "platform/Workspace.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace fadeloom {

namespace {

/// Of `entries`, those that have got out of reach, or are so for another reason, since `former` were found.
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

    updateSeen(groups);
    updateApps(groups);
    removeTapsOfQuitApps(groups);
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
    failed_.clear();  // Another permission, another answer.
    state_.permission.assign(state);
}

void AudioController::updateSeen(const AppGroups& groups)
{
    for (const auto& [id, group] : groups) {
        if (group.isPlaying())
            seen_.insert(id);
    }
    std::erase_if(seen_, [&](const auto& id) { return !groups.contains(id) && !recordings_.contains(id); });
}

void AudioController::updateApps(const AppGroups& groups)
{
    std::vector<AppEntry> entries;
    for (const auto& [id, group] : groups) {
        if (seen_.contains(id))
            entries.push_back(makeEntry(id, group));
    }
    if (const auto lost = describeOutOfReach(entries, *state_.apps); !lost.empty())
        engineLog_.notice("out of reach: " + lost);
    rememberNames(entries);
    if (state_.apps.assignIfDifferent(inDisplayOrder(std::move(entries), platform_.text)))
        engineLog_.notice("apps: " + describe(*state_.apps));
}

AppEntry AudioController::makeEntry(const std::string& bundleID, const AppGroup& group)
{
    const auto [traits, isNew] = traits_.try_emplace(bundleID);
    if (isNew) {
        traits->second.callIDs = platform_.callApps.identifiersOf(bundleID);
        platform_.workspace.findIcon(group.owner, life_.whileAlive([this, bundleID](const AppIcon& found) {
            if (const auto known = traits_.find(bundleID); known != traits_.end())
                known->second.icon = found;
            auto entries = *state_.apps;
            for (auto& entry : entries)
                if (entry.bundleID == bundleID)
                    entry.icon = found;
            state_.apps.assignIfDifferent(std::move(entries));
        }));
    }
    return {
        .bundleID = bundleID,
        .name = group.owner.localizedName.value_or(bundleID),
        .icon = traits->second.icon,
        .isPlaying = group.isPlaying(),
        .isUsingMic = group.isUsingMic(),
        .callIDs = traits->second.callIDs,
        .processIDs = group.processIDs(),
        .ownOutputs = group.ownOutputs(),
        .outOfReach = group.outOfReach(),
    };
}

void AudioController::rememberNames(const std::vector<AppEntry>& entries)
{
    // Together: one assignment for each of a thousand names would copy the whole record a thousand times.
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
    std::erase_if(params_, [&](const auto& item) { return hasQuit(item) && !taps_.contains(item.first); });
    std::erase_if(traits_, hasQuit);
    std::erase_if(failed_, hasQuit);
    std::erase_if(audioConfirmed_, [&](const auto& id) { return !groups.contains(id); });

    auto errors = *state_.tapErrors;
    if (std::erase_if(errors, hasQuit) > 0)
        state_.tapErrors.assign(std::move(errors));
}

void AudioController::confirmAudio()
{
    for (const auto& [id, block] : params_) {
        if (taps_.contains(id) && !audioConfirmed_.contains(id)
            && block->audioSeen.load(std::memory_order_relaxed)) {
            audioConfirmed_.insert(id);
            engineLog_.notice("audio flowing through tap: " + id);
        }
    }
}

std::optional<std::string> AudioController::appOfProcess(ProcessID process) const
{
    const auto& workspace = platform_.workspace;
    const auto owner = AppResolver(workspace).owningApp(process, "", workspace.runningApplications());
    const bool isInMixer = owner && owner->bundleID
        && std::ranges::find(*state_.apps, *owner->bundleID, &AppEntry::bundleID) != state_.apps->end();
    return isInMixer ? owner->bundleID : std::nullopt;
}

}  // namespace fadeloom
