// SPDX-License-Identifier: MIT
// What the panel asks of the program around it, handed to those who know.
#pragma once

#include "shell/Translate.h"
#include "ui/PanelHost.h"

#include <functional>
#include <optional>
#include <string>

namespace fadeloom {

class Application;
class Dialogs;
class UpdateChecker;
class UserDefaults;
class Workspace;

/// Thread: main.
class PanelServices final : public PanelHost {
public:
    /// All must outlive it.
    struct Parts {
        Workspace& workspace;
        Application& application;
        Dialogs& dialogs;
        UserDefaults& userDefaults;
        UpdateChecker* updates;  // Null in a program that looks for none.
        Translate translate;
        std::function<void()> quit;
    };

    explicit PanelServices(Parts parts);
    PanelServices(const PanelServices&) = delete;
    PanelServices& operator=(const PanelServices&) = delete;

    std::string version() const override;
    void quit() override { parts_.quit(); }
    void openAboutPanel() override;
    std::string webPageHost() const override;
    void openWebPage() override;
    void openPrivacySettings() override { }  // Linux asks for no permission, so none is ever missing.

    std::optional<std::string> availableVersion() const override;
    Subscription whenAvailableVersionChanges(std::function<void()> changed) override;
    void openDownloadPage() override;

    std::string language() const override;
    void setLanguage(const std::string& code) override;
    void restart() override;

    std::optional<std::string> installedName(const std::string& bundleID) const override;
    void chooseApplication(std::function<void(const std::string& bundleID)> chosen) override;

private:
    const Parts parts_;
};

}  // namespace fadeloom
