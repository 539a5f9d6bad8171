// SPDX-License-Identifier: MIT
// What the panel needs of the program that shows it.
#pragma once

#include "base/Subscription.h"

#include <functional>
#include <optional>
#include <string>

namespace fadeloom {

/// Thread: main.
class PanelHost {
public:
    virtual ~PanelHost() = default;

    // The program.
    [[nodiscard]] virtual std::string version() const = 0;
    virtual void quit() = 0;
    virtual void openAboutPanel() = 0;
    /// The host name of the product's web page, and the page itself.
    [[nodiscard]] virtual std::string webPageHost() const = 0;
    virtual void openWebPage() = 0;
    /// The page of the system settings on which capturing is allowed.
    virtual void openPrivacySettings() = 0;

    // A newer version of it.
    [[nodiscard]] virtual std::optional<std::string> availableVersion() const = 0;
    /// Has `changed` called whenever `availableVersion` is another one.
    [[nodiscard]] virtual Subscription whenAvailableVersionChanges(std::function<void()> changed) = 0;
    virtual void openDownloadPage() = 0;

    // Its language: "system", "en" or "pl".
    /// The one for the next start.
    [[nodiscard]] virtual std::string language() const = 0;
    virtual void setLanguage(const std::string& code) = 0;
    virtual void restart() = 0;

    // Applications that need not run.
    [[nodiscard]] virtual std::optional<std::string> installedName(const std::string& bundleID) const = 0;
    /// Lets the user choose one; `chosen` gets its bundle identifier, or is never called.
    virtual void chooseApplication(std::function<void(const std::string& bundleID)> chosen) = 0;
};

}  // namespace fadeloom
