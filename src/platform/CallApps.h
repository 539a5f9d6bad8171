// SPDX-License-Identifier: MIT
// The apps that are known to be for calls where the program runs.
#pragma once

#include <string>
#include <vector>

namespace fadeloom {

/// One app, however it is installed.
struct CallApp {
    std::string name;
    std::vector<std::string> bundleIDs;  // Never empty; the first stands for the app in the settings.

    friend bool operator==(const CallApp&, const CallApp&) = default;
};

/// Thread: main.
class CallApps {
public:
    virtual ~CallApps() = default;

    /// In the order in which they are listed.
    [[nodiscard]] virtual const std::vector<CallApp>& wellKnown() const = 0;
    /// What an earlier version listed until the user changed it; empty when that was the same.
    [[nodiscard]] virtual std::vector<std::string> formerDefaults() const = 0;
    /// This identifier, then all others of the well-known app that it belongs to.
    [[nodiscard]] virtual std::vector<std::string> identifiersOf(const std::string& bundleID) const = 0;
};

/// A well-known app that has `bundleID` among its own; null for none.
[[nodiscard]] const CallApp* callAppWith(const std::vector<CallApp>& apps, const std::string& bundleID);

/// `bundleID`, then the other identifiers of `app`; null: of no app.
[[nodiscard]] std::vector<std::string> identifiersWith(const std::string& bundleID, const CallApp* app);

}  // namespace fadeloom
