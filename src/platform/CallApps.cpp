// SPDX-License-Identifier: MIT
#include "platform/CallApps.h"

#include <algorithm>
#include <iterator>

namespace fadeloom {

const CallApp* callAppWith(const std::vector<CallApp>& apps, const std::string& bundleID)
{
    const auto found = std::ranges::find_if(apps, [&](const CallApp& app) {
        return std::ranges::find(app.bundleIDs, bundleID) != app.bundleIDs.end();
    });
    return found == apps.end() ? nullptr : &*found;
}

std::vector<std::string> identifiersWith(const std::string& bundleID, const CallApp* app)
{
    std::vector<std::string> identifiers = {bundleID};
    if (app != nullptr)
        std::ranges::remove_copy(app->bundleIDs, std::back_inserter(identifiers), bundleID);
    return identifiers;
}

}  // namespace fadeloom
