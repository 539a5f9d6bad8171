// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxCallApps.h"

#include "platform/FirstCallApps.h"
#include "platform/linux/CallAppCatalogue.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace fadeloom {
namespace {

bool contains(std::span<const std::string_view> texts, std::string_view text)
{
    return std::ranges::find(texts, text) != texts.end();
}

bool isOfSite(std::string_view host, std::string_view site)
{
    return host == site
        || (host.ends_with(site) && host.size() > site.size() && host[host.size() - site.size() - 1] == '.');
}

/// Some web apps of Firefox have no URL, only their name.
bool isNamed(const DesktopEntry& entry, std::string_view name)
{
    return entry.id.starts_with("FFPWA-") && entry.site.empty() && entry.name == name;
}

bool isWebAppOf(const DesktopEntry& entry, const KnownCallApp& app)
{
    return contains(app.chromiumIDs, entry.chromiumID) || isNamed(entry, app.name)
        || std::ranges::any_of(app.sites, [&](std::string_view site) { return isOfSite(entry.site, site); });
}

}  // namespace

const std::vector<CallApp>& LinuxCallApps::knownApps() const
{
    static const std::vector<CallApp> apps = [] {
        std::vector<CallApp> result;
        for (const auto& app : callAppCatalogue())
            result.push_back({.name = std::string(app.name),
                .bundleIDs = std::vector<std::string>(app.bundleIDs.begin(), app.bundleIDs.end())});
        return result;
    }();
    return apps;
}

std::vector<std::string> LinuxCallApps::formerDefaults() const
{
    std::vector<std::string> former;
    for (const auto& app : firstCallApps())
        former.push_back(app.bundleIDs.front());
    return former;
}

std::vector<std::string> LinuxCallApps::identifiersOf(const std::string& bundleID) const
{
    if (const auto* const app = callAppWith(knownApps(), bundleID))
        return identifiersWith(bundleID, app);
    const auto entry = entryWithID_(bundleID);
    const auto catalogue = callAppCatalogue();
    const auto known = std::ranges::find_if(
        catalogue, [&](const KnownCallApp& app) { return entry && isWebAppOf(*entry, app); });
    if (known == catalogue.end())
        return {bundleID};
    return identifiersWith(bundleID, &knownApps()[static_cast<std::size_t>(known - catalogue.begin())]);
}

}  // namespace fadeloom
