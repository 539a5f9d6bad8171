// SPDX-License-Identifier: MIT
#include "control/CallDucking.h"

#include <algorithm>

namespace fadeloom {
namespace {

bool isDeclined(const FocusSettings& focus, const AppEntry& entry)
{
    const auto& declined = focus.declinedCallApps;
    return std::ranges::find_first_of(declined, entry.callIDs) != declined.end();
}

}  // namespace

std::optional<std::string> appOnCall(std::span<const AppEntry> entries, const FocusSettings& focus)
{
    if (!focus.enabled)
        return std::nullopt;
    const auto found = std::ranges::find_if(
        entries, [&](const AppEntry& entry) { return entry.isUsingMic && isCallApp(focus, entry.callIDs); });
    if (found == entries.end())
        return std::nullopt;
    return found->bundleID;
}

float duckFactor(const FocusSettings& focus, const std::optional<std::string>& callApp,
    std::span<const std::string> identifiers)
{
    return callApp && !isCallApp(focus, identifiers) ? focus.duckLevel : 1.0F;
}

std::set<std::string> callOffers(
    std::span<const AppEntry> entries, const FocusSettings& focus, const std::set<std::string>& offered)
{
    std::set<std::string> offers;
    for (const auto& entry : entries) {
        const bool hasReason = (entry.isUsingMic && entry.isPlaying) || offered.contains(entry.bundleID);
        if (focus.enabled && hasReason && !isCallApp(focus, entry.callIDs) && !isDeclined(focus, entry))
            offers.insert(entry.bundleID);
    }
    return offers;
}

}  // namespace fadeloom
