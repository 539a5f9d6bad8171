// SPDX-License-Identifier: MIT
// The call apps of the simulation: two, one of which has two identifiers.
#pragma once

#include "platform/CallApps.h"

#include <utility>

namespace fadeloom {

class SimulatedCallApps : public CallApps {
public:
    [[nodiscard]] const std::vector<CallApp>& knownApps() const override { return apps_; }
    [[nodiscard]] std::vector<std::string> formerDefaults() const override { return former_; }
    [[nodiscard]] std::vector<std::string> identifiersOf(const std::string& bundleID) const override
    {
        return identifiersWith(bundleID, callAppWith(apps_, bundleID));
    }

    /// The default list of the previous version.
    void setFormerDefaults(std::vector<std::string> former) { former_ = std::move(former); }

private:
    std::vector<CallApp> apps_ = {
        {.name = "Meet", .bundleIDs = {"com.example.meet", "com.example.meet.sandboxed"}},
        {.name = "Talk", .bundleIDs = {"com.example.talk"}},
    };
    std::vector<std::string> former_{};
};

}  // namespace fadeloom
