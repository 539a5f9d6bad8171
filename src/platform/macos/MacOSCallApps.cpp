// SPDX-License-Identifier: MIT
#include "platform/macos/MacOSCallApps.h"

#include "platform/FirstCallApps.h"

namespace fadeloom {

const std::vector<CallApp>& MacOSCallApps::knownApps() const
{
    return firstCallApps();
}

std::vector<std::string> MacOSCallApps::identifiersOf(const std::string& bundleID) const
{
    return identifiersWith(bundleID, callAppWith(knownApps(), bundleID));
}

}  // namespace fadeloom
