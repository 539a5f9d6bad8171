// SPDX-License-Identifier: MIT
#include "control/AppResolver.h"

#include <algorithm>
#include <vector>

namespace fadeloom {
namespace {

bool isEqualOrExtended(std::string_view id, std::string_view candidate)
{
    return id.starts_with(candidate) && (id.size() == candidate.size() || id[candidate.size()] == '.');
}

}  // namespace

std::optional<std::string_view> bestPrefixMatch(
    std::string_view id, std::span<const std::string_view> candidates)
{
    if (id.empty())
        return std::nullopt;

    std::optional<std::string_view> best;
    for (const auto candidate : candidates) {
        if (isEqualOrExtended(id, candidate) && (!best || candidate.size() > best->size()))
            best = candidate;
    }
    return best;
}

bool AppResolver::isUserApp(const RunningApplication& app) const
{
    return app.activationPolicy != ActivationPolicy::prohibited && app.bundleLocation
        && workspace_.isApplicationBundle(*app.bundleLocation);
}

std::optional<RunningApplication> AppResolver::userAppOf(ProcessID pid) const
{
    auto app = workspace_.runningApplication(pid);
    if (app && !isUserApp(*app))
        app.reset();
    return app;
}

std::optional<RunningApplication> AppResolver::appExtendedBy(
    std::string_view bundleID, std::span<const RunningApplication> runningApps) const
{
    // The cheap test first: of a thousand applications at most a handful have this prefix.
    std::vector<std::string_view> candidates;
    for (const auto& app : runningApps) {
        if (app.bundleID && isEqualOrExtended(bundleID, *app.bundleID) && isUserApp(app))
            candidates.push_back(*app.bundleID);
    }

    const auto best = bestPrefixMatch(bundleID, candidates);
    if (!best)
        return std::nullopt;
    return *std::ranges::find_if(runningApps, [&](const auto& app) { return app.bundleID == *best; });
}

std::optional<RunningApplication> AppResolver::owningApp(
    ProcessID pid, std::string_view bundleID, std::span<const RunningApplication> runningApps) const
{
    if (auto app = userAppOf(pid))
        return app;
    const auto responsible = workspace_.responsiblePid(pid);
    if (responsible && *responsible >= 1 && *responsible != pid) {
        if (auto app = userAppOf(*responsible))
            return app;
    }
    return appExtendedBy(bundleID, runningApps);
}

}  // namespace fadeloom
