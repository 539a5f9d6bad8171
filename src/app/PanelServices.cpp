// SPDX-License-Identifier: MIT
#include "app/PanelServices.h"

#include "app/ProductPages.h"
#include "app/Version.h"
#include "platform/Dialogs.h"
#include "platform/Workspace.h"
#include "shell/AboutPanel.h"
#include "shell/AppLanguage.h"
#include "shell/UpdateChecker.h"
#include "shell/WebAddress.h"

#include <utility>

namespace fadeloom {

PanelServices::PanelServices(Parts parts)
    : parts_(std::move(parts))
{
}

std::string PanelServices::version() const
{
    return std::string(programVersion());
}

void PanelServices::openAboutPanel()
{
    AboutPanel::show(parts_.application, parts_.translate, webPage());
}

std::string PanelServices::webPageHost() const
{
    return hostName(webPage());
}

void PanelServices::openWebPage()
{
    parts_.workspace.open(webPage());
}

std::optional<std::string> PanelServices::availableVersion() const
{
    if (parts_.updates == nullptr || !*parts_.updates->available())
        return std::nullopt;
    return (*parts_.updates->available())->version;
}

Subscription PanelServices::whenAvailableVersionChanges(std::function<void()> changed)
{
    if (parts_.updates == nullptr)
        return {};
    return parts_.updates->available().whenAssigned(std::move(changed));
}

void PanelServices::openDownloadPage()
{
    if (parts_.updates != nullptr)
        parts_.updates->openDownloadPage();
}

std::string PanelServices::language() const
{
    return AppLanguage::current(parts_.userDefaults);
}

void PanelServices::setLanguage(const std::string& code)
{
    AppLanguage::set(parts_.userDefaults, code);
}

void PanelServices::restart()
{
    AppLanguage::relaunch(parts_.workspace, parts_.quit);
}

std::optional<std::string> PanelServices::installedName(const std::string& bundleID) const
{
    return parts_.workspace.installedName(bundleID);
}

void PanelServices::chooseApplication(std::function<void(const std::string&)> chosen)
{
    parts_.dialogs.chooseApplication([chosen = std::move(chosen)](const auto& bundleID) {
        if (bundleID)
            chosen(*bundleID);
    });
}

}  // namespace fadeloom
