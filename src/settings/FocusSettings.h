// SPDX-License-Identifier: MIT
// Whether, how far, and for whose calls the other apps are lowered.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace fadeloom {

struct FocusSettings {
    bool enabled = true;
    float duckLevel = 0.2F;  // Linear factor on every other app, 0 to 1.
    std::vector<std::string> callApps = defaultCallApps();  // Bundle identifiers.

    /// The call apps that we know, in the order in which they are listed.
    [[nodiscard]] static const std::vector<std::string>& defaultCallApps();
    /// Their names, by bundle identifier.
    [[nodiscard]] static const std::map<std::string, std::string>& knownNames();

    friend bool operator==(const FocusSettings&, const FocusSettings&) = default;
};

}  // namespace fadeloom
