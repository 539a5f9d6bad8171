// SPDX-License-Identifier: MIT
// What the panel asks of the program around it, answered by Qt.
#pragma once

#include "ui/PanelHost.h"

#include <QPointer>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

class QMessageBox;
class QFileDialog;

namespace fadeloom {

/// Needs a QApplication. Thread: main.
class PanelServices final : public PanelHost {
public:
    struct Desktop {
        std::function<void()> quit;
        /// The name of an installed application, by its bundle identifier.
        std::function<std::optional<std::string>(const std::string&)> installedName;
    };

    /// `preferences`: the file in which the choice of a language is kept.
    PanelServices(Desktop desktop, const std::filesystem::path& preferences);
    PanelServices(const PanelServices&) = delete;
    PanelServices& operator=(const PanelServices&) = delete;
    ~PanelServices() override;

    std::string version() const override;
    void quit() override { desktop_.quit(); }
    void openAboutPanel() override;
    std::string webPageHost() const override;
    void openWebPage() override;
    void openPrivacySettings() override { }  // Linux asks for no permission, so none is ever missing.

    // This version looks for no newer one.
    std::optional<std::string> availableVersion() const override { return std::nullopt; }
    Subscription whenAvailableVersionChanges(std::function<void()>) override { return {}; }
    void openDownloadPage() override { openWebPage(); }

    std::string language() const override;
    void setLanguage(const std::string& code) override;
    void restart() override;

    std::optional<std::string> installedName(const std::string& bundleID) const override
    {
        return desktop_.installedName(bundleID);
    }
    void chooseApplication(std::function<void(const std::string& bundleID)> chosen) override;

private:
    Desktop desktop_;
    const std::filesystem::path preferences_;
    QPointer<QMessageBox> about_;
    QPointer<QFileDialog> applications_;
};

}  // namespace fadeloom
