// SPDX-License-Identifier: MIT
#include "control/CallDucking.h"

#include <algorithm>

namespace fadeloom {
namespace {

bool isCallApp(const FocusSettings& focus, const std::string& bundleID)
{
    return std::ranges::find(focus.callApps, bundleID) != focus.callApps.end();
}

}  // namespace

std::optional<std::string> appOnCall(std::span<const AppEntry> entries, const FocusSettings& focus)
{
    if (!focus.enabled)
        return std::nullopt;
    const auto found = std::ranges::find_if(
        entries, [&](const AppEntry& entry) { return entry.isUsingMic && isCallApp(focus, entry.bundleID); });
    if (found == entries.end())
        return std::nullopt;
    return found->bundleID;
}

float duckFactor(
    const FocusSettings& focus, const std::optional<std::string>& callApp, const std::string& bundleID)
{
    return callApp && !isCallApp(focus, bundleID) ? focus.duckLevel : 1.0F;
}

}  // namespace fadeloom
