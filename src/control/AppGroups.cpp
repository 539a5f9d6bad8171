// SPDX-License-Identifier: MIT
#include "control/AppGroups.h"

#include <algorithm>
#include <set>
#include <unordered_set>

namespace fadeloom {

bool AppGroup::isPlaying() const
{
    return std::ranges::any_of(processes, &AudioProcess::isPlaying);
}

bool AppGroup::isUsingMic() const
{
    return std::ranges::any_of(processes, &AudioProcess::isUsingMic);
}

std::vector<AudioProcessID> AppGroup::processIDs() const
{
    std::vector<AudioProcessID> ids;
    ids.reserve(processes.size());
    for (const auto& process : processes)
        ids.push_back(process.id);
    std::ranges::sort(ids);
    return ids;
}

std::vector<std::string> AppGroup::ownOutputs() const
{
    std::set<std::string> uids;
    for (const auto& process : processes)
        uids.insert(process.ownOutputs.begin(), process.ownOutputs.end());
    return {uids.begin(), uids.end()};
}

std::optional<OutOfReach> AppGroup::outOfReach() const
{
    const auto found = std::ranges::find_if(
        processes, [](const AudioProcess& process) { return process.outOfReach.has_value(); });
    return found == processes.end() ? std::nullopt : found->outOfReach;
}

AppGroups AppGrouper::group(std::span<const AudioProcess> processes)
{
    const auto ownPid = workspace_.ownPid();
    const auto ownBundleID = workspace_.ownBundleID();
    AppGroups groups;
    RunningApps runningApps;
    for (const auto& process : processes) {
        if (process.pid == ownPid || process.pid < 1)
            continue;
        const auto& owner = ownerOf(process, runningApps);
        if (!owner || !owner->bundleID || *owner->bundleID == ownBundleID || workspace_.isTerminated(*owner))
            continue;
        auto [group, isNew] = groups.try_emplace(*owner->bundleID);
        if (isNew)
            group->second.owner = *owner;
        group->second.processes.push_back(process);
    }
    forgetAllBut(processes);
    return groups;
}

const AppGrouper::Owner& AppGrouper::ownerOf(const AudioProcess& process, RunningApps& runningApps)
{
    const auto known = owners_.find(process.pid);
    if (known != owners_.end())
        return known->second;

    if (!runningApps)
        runningApps = workspace_.runningApplications();
    auto owner = resolver_.owningApp(process.pid, process.bundleID, *runningApps);
    return owners_.emplace(process.pid, std::move(owner)).first->second;
}

void AppGrouper::forgetAllBut(std::span<const AudioProcess> processes)
{
    std::unordered_set<ProcessID> present;
    for (const auto& process : processes)
        present.insert(process.pid);
    std::erase_if(owners_, [&](const auto& owner) { return !present.contains(owner.first); });
}

}  // namespace fadeloom
