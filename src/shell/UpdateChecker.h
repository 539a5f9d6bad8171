// SPDX-License-Identifier: MIT
// Checks for a newer version of the program.
//
// It queries a small feed on the product's web server, silently at startup and once a day, and publishes a newer
// version. A check requested by the user reports its result in a message. It downloads and installs nothing: it opens
// the download page.
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

    /// What is installed, and where to check.
    struct Product {
        std::string version;  // For display.
        // Its number in digits; anything else counts as 0, which is older than any release.
        std::string build;
        std::string endpoint;  // The base URL of the web server.
    };
    /// Its dependencies; all must outlive it.
    struct Parts {
        MainLoop& mainLoop;
        HttpClient& http;
        Workspace& workspace;
        Application& application;
        Dialogs& dialogs;
        Translate translate;
    };

    /// Does not send a request yet.
    UpdateChecker(Product product, Parts parts);
    UpdateChecker(const UpdateChecker&) = delete;
    UpdateChecker& operator=(const UpdateChecker&) = delete;

    /// The newer version found by the last successful check; nullopt if there is none, or nothing is known.
    [[nodiscard]] const Published<std::optional<RemoteVersion>>& available() const { return available_; }

    /// Checks now and once a day from then on. Call once.
    void start();
    /// Queries the feed; `done` receives whether it could be read. If not, `available` is unchanged: the earlier result
    /// still holds. Checks may overlap; the last one to finish wins.
    void check(std::function<void(bool isReachable)> done);
    /// Checks, and reports the result to the user. Returns immediately.
    void checkInteractively();
    /// In the user's browser.
    void openDownloadPage();

    [[nodiscard]] std::int64_t localBuild() const { return localBuild_; }
    [[nodiscard]] std::string versionURL() const;
    [[nodiscard]] std::string downloadURL() const;

private:
    void take(const RemoteVersion& remote);
    void reportOutcome(bool isReachable);
    [[nodiscard]] Alert updateAlert(const RemoteVersion& remote) const;

    const Product product_;
    const std::int64_t localBuild_;
    Parts parts_;
    Published<std::optional<RemoteVersion>> available_;
    Subscription timer_;
    LifeToken life_;
};

}  // namespace fadeloom
