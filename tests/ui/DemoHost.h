// SPDX-License-Identifier: MIT
// A program around the panel that only remembers what it was asked for.
#pragma once

#include "base/Observers.h"
#include "ui/PanelHost.h"

#include <string>
#include <utility>
#include <vector>

namespace fadeloom {

class DemoHost final : public PanelHost {
public:
    std::string version() const override { return "1.0"; }
    void quit() override { asked.emplace_back("quit"); }
    void openAboutPanel() override { asked.emplace_back("about"); }
    std::string webPageHost() const override { return "fadeloom.example"; }
    void openWebPage() override { asked.emplace_back("web page"); }
    void openPrivacySettings() override { asked.emplace_back("privacy settings"); }

    std::optional<std::string> availableVersion() const override { return newVersion_; }
    Subscription whenAvailableVersionChanges(std::function<void()> changed) override
    {
        return observers_.add(std::move(changed));
    }
    void openDownloadPage() override { asked.emplace_back("download page"); }

    std::string language() const override { return languageCode; }
    void setLanguage(const std::string& code) override { languageCode = code; }
    void restart() override { asked.emplace_back("restart"); }

    std::optional<std::string> installedName(const std::string& bundleID) const override
    {
        return bundleID == "com.example.installed" ? std::optional<std::string>("Installed.app")
                                                   : std::nullopt;
    }
    void chooseApplication(std::function<void(const std::string&)> chosen) override
    {
        chosen(chosenApplication);
    }

    void publish(const std::string& version)
    {
        newVersion_ = version;
        observers_.notify();
    }

    std::vector<std::string> asked;
    std::string languageCode = "system";
    std::string chosenApplication = "com.example.chosen";

private:
    std::optional<std::string> newVersion_;
    Observers observers_;
};

}  // namespace fadeloom
