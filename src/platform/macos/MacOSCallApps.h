// SPDX-License-Identifier: MIT
// The known call apps of macOS, by bundle identifier.
#pragma once

#include "platform/CallApps.h"

namespace fadeloom {

class MacOSCallApps : public CallApps {
public:
    [[nodiscard]] const std::vector<CallApp>& knownApps() const override;
    [[nodiscard]] std::vector<std::string> formerDefaults() const override { return {}; }
    [[nodiscard]] std::vector<std::string> identifiersOf(const std::string& bundleID) const override;
};

}  // namespace fadeloom
