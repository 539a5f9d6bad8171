// SPDX-License-Identifier: MIT
// Looks for a newer version of the program.
//
// It asks a small feed on the product's web server, silently at the start and once a day, and publishes what is newer.
// When the user asks, a message tells the outcome. It downloads and installs nothing: it opens the page where the user
// finds the new version.
#pragma once

#include "base/LifeToken.h"
#include "base/Published.h"
#include "base/Subscription.h"
#include "shell/RemoteVersion.h"
#include "shell/Translate.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace fadeloom {

class Application;
class Dialogs;
class HttpClient;
class MainLoop;
class Workspace;
struct Alert;

/// Thread: main.
class UpdateChecker {
public:
    static constexpr std::chrono::hours checkInterval{24};

    /// What is installed, and where to ask.
    struct Product {
        std::string version;  // For the user's eyes.
        std::string
            build;  // Its number in digits; anything else counts as 0, which is older than any release.
        std::string endpoint;  // The base address of the web server.
    };
    /// What it works with; all must outlive it.
    struct Parts {
        MainLoop& mainLoop;
        HttpClient& http;
        Workspace& workspace;
        Application& application;
        Dialogs& dialogs;
        Translate translate;
    };

    /// Asks nobody yet.
    UpdateChecker(Product product, Parts parts);
    UpdateChecker(const UpdateChecker&) = delete;
    UpdateChecker& operator=(const UpdateChecker&) = delete;

    /// The newer version that the last successful check found; absent when there is none, or nothing is known.
    [[nodiscard]] const Published<std::optional<RemoteVersion>>& available() const { return available_; }

    /// Checks now and from then on once a day. To be called once.
    void start();
    /// Asks the feed; `done` hears whether it could be read. Without that, `available` stays as it was: what was found
    /// before still holds. Checks may overlap; the last one that ends decides.
    void check(std::function<void(bool isReachable)> done);
    /// Checks, and tells the user the outcome. Returns at once.
    void checkInteractively();
    /// In the user's browser.
    void openDownloadPage();

    [[nodiscard]] std::int64_t localBuild() const { return localBuild_; }
    [[nodiscard]] std::string versionURL() const;
    [[nodiscard]] std::string downloadURL() const;

private:
    void take(const RemoteVersion& remote);
    void tellOutcome(bool isReachable);
    [[nodiscard]] Alert updateAlert(const RemoteVersion& remote) const;

    const Product product_;
    const std::int64_t localBuild_;
    Parts parts_;
    Published<std::optional<RemoteVersion>> available_;
    Subscription timer_;
    LifeToken life_;
};

}  // namespace fadeloom
