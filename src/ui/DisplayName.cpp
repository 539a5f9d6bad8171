// SPDX-License-Identifier: MIT
#include "ui/DisplayName.h"

#include <string_view>

namespace fadeloom {
namespace {

std::string withoutEach(std::string text, std::string_view part)
{
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at))
        text.erase(at, part.size());
    return text;
}

}  // namespace

std::string displayName(const SettingsData& settings, const CallApps& callApps, const std::string& bundleID,
    const InstalledName& installedName)
{
    if (const auto known = settings.knownAppNames.find(bundleID); known != settings.knownAppNames.end())
        return known->second;
    if (const auto* const known = callAppWith(callApps.knownApps(), bundleID))
        return known->name;
    if (const auto installed = installedName ? installedName(bundleID) : std::nullopt)
        return withoutEach(*installed, ".app");
    return bundleID;
}

}  // namespace fadeloom
