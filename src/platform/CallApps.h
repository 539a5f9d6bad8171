// SPDX-License-Identifier: MIT
// The apps known to be for calls on this platform.
#pragma once

#include <string>
#include <vector>

namespace fadeloom {

/// One app, with the identifiers of all its packages.
struct CallApp {
    std::string name;
    std::vector<std::string> bundleIDs;  // Never empty; the first represents the app in the settings.

    friend bool operator==(const CallApp&, const CallApp&) = default;
};

/// Thread: main.
class CallApps {
public:
    virtual ~CallApps() = default;

    /// In display order.
    [[nodiscard]] virtual const std::vector<CallApp>& knownApps() const = 0;
    /// The default list of an earlier version; empty if it was the same.
    [[nodiscard]] virtual std::vector<std::string> formerDefaults() const = 0;
    /// This identifier, then all others of the known app that it belongs to.
    [[nodiscard]] virtual std::vector<std::string> identifiersOf(const std::string& bundleID) const = 0;
};

/// A known app with `bundleID` among its identifiers; null if there is none.
[[nodiscard]] const CallApp* callAppWith(const std::vector<CallApp>& apps, const std::string& bundleID);

/// `bundleID`, then the other identifiers of `app`, which may be null.
[[nodiscard]] std::vector<std::string> identifiersWith(const std::string& bundleID, const CallApp* app);

}  // namespace fadeloom
