// SPDX-License-Identifier: MIT
#include "settings/FocusSettings.h"

#include <algorithm>

namespace fadeloom {
namespace {

void eraseAll(std::vector<std::string>& list, std::span<const std::string> identifiers)
{
    std::erase_if(
        list, [&](const auto& id) { return std::ranges::find(identifiers, id) != identifiers.end(); });
}

}  // namespace

DefaultCallApps defaultCallApps(const CallApps& callApps)
{
    DefaultCallApps defaults{.former = callApps.formerDefaults()};
    for (const auto& app : callApps.knownApps())
        defaults.current.push_back(app.bundleIDs.front());
    return defaults;
}

bool isCallApp(const FocusSettings& focus, std::span<const std::string> identifiers)
{
    return std::ranges::find_first_of(focus.callApps, identifiers) != focus.callApps.end();
}

void addCallApp(FocusSettings& focus, std::span<const std::string> identifiers)
{
    eraseAll(focus.declinedCallApps, identifiers);
    if (!isCallApp(focus, identifiers))
        focus.callApps.push_back(identifiers.front());
}

void removeCallApp(FocusSettings& focus, std::span<const std::string> identifiers)
{
    eraseAll(focus.callApps, identifiers);
    eraseAll(focus.declinedCallApps, identifiers);
    focus.declinedCallApps.push_back(identifiers.front());
}

}  // namespace fadeloom
