// SPDX-License-Identifier: MIT
#include "ui/SettingsModel.h"

#include "platform/Dialogs.h"
#include "platform/Workspace.h"
#include "shell/AboutPanel.h"
#include "shell/AppLanguage.h"
#include "shell/WebAddress.h"
#include "ui/SettingsEntries.h"
#include "ui/ShortPath.h"
#include "ui/VolumeText.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace fadeloom {
namespace {

SettingsData pageSettings(const SettingsData& settings)
{
    return {
        .focus = settings.focus,
        .recordingsFolder = settings.recordingsFolder,
        .knownAppNames = settings.knownAppNames,
        .appearance = settings.appearance,
        .volumeLimit = settings.volumeLimit,
        .eqAutoHeadroom = settings.eqAutoHeadroom,
    };
}

}  // namespace

SettingsModel::SettingsModel(AudioController& controller, const PanelParts& parts, QObject* parent)
    : QObject(parent)
    , controller_(controller)
    , parts_(parts)
    , languageAtStart_(AppLanguage::current(parts.userDefaults))
    , language_(languageAtStart_)
    , shown_(pageSettings(settings()))
{
    observe();
}

void SettingsModel::observe()
{
    const auto& state = controller_.state();
    observed_.push_back(state.settings.whenAssigned([this] {
        auto now = pageSettings(settings());
        if (now == shown_)
            return;
        shown_ = std::move(now);
        Q_EMIT changed();
        Q_EMIT offeredAppsChanged();
    }));
    observed_.push_back(state.launchAtLogin.whenAssigned([this] { Q_EMIT changed(); }));
    observed_.push_back(state.apps.whenAssigned([this] { Q_EMIT offeredAppsChanged(); }));
    observed_.push_back(state.callOffers.whenAssigned([this] { Q_EMIT offeredAppsChanged(); }));
}

QVariantList SettingsModel::callApps() const
{
    return variantsOf(callAppEntries(settings(), controller_.callApps(),
        [this](const std::string& id) { return parts_.workspace.installedName(id); }));
}

QVariantList SettingsModel::offeredApps() const
{
    return variantsOf(offeredAppEntries(controller_.state()));
}

QVariantList SettingsModel::volumeLimits() const
{
    return variantsOf(volumeLimitEntries(settings().volumeLimit));
}

QVariantList SettingsModel::languages() const
{
    return variantsOf(languageEntries(language_));
}

bool SettingsModel::lowersOthers() const
{
    return settings().focus.enabled;
}

qreal SettingsModel::duckLevelPercent() const
{
    return percentOf(settings().focus.duckLevel);
}

QString SettingsModel::duckPercent() const
{
    return percentText(static_cast<double>(settings().focus.duckLevel));
}

QString SettingsModel::spokenDuckLevel() const
{
    return spokenPercent(static_cast<double>(settings().focus.duckLevel));
}

QString SettingsModel::recordingsFolder() const
{
    return shortPath(controller_.recordingsFolder());
}

QString SettingsModel::volumeLimit() const
{
    return volumeLimitText(settings().volumeLimit);
}

bool SettingsModel::isBoostAllowed() const
{
    return settings().volumeLimit > 1;
}

bool SettingsModel::hasAutoHeadroom() const
{
    return settings().eqAutoHeadroom;
}

int SettingsModel::theme() const
{
    return static_cast<int>(std::ranges::find(allThemes, settings().appearance.theme) - allThemes.begin());
}

bool SettingsModel::glass() const
{
    return settings().appearance.glass;
}

bool SettingsModel::animations() const
{
    return settings().appearance.animations;
}

bool SettingsModel::levelMeters() const
{
    return settings().appearance.levelMeters;
}

bool SettingsModel::launchesAtLogin() const
{
    return *controller_.state().launchAtLogin;
}

QString SettingsModel::language() const
{
    return languageName(language_);
}

bool SettingsModel::needsRestart() const
{
    return language_ != languageAtStart_;
}

QString SettingsModel::version() const
{
    return QString::fromStdString(parts_.version);
}

QString SettingsModel::webPageHost() const
{
    return QString::fromStdString(hostName(parts_.webPage));
}

void SettingsModel::setLowersOthers(bool isOn)
{
    controller_.editSettings([&](auto& settings) { settings.focus.enabled = isOn; });
}

void SettingsModel::setDuckLevel(qreal level)
{
    controller_.editSettings([&](auto& settings) { settings.focus.duckLevel = steppedDuckLevel(level); });
}

void SettingsModel::removeCallApp(const QString& bundleID)
{
    controller_.removeCallApp(bundleID.toStdString());
}

void SettingsModel::addCallApp(const QString& key)
{
    if (key != QLatin1String(chooseAppKey))
        return controller_.addCallApp(key.toStdString());
    parts_.dialogs.chooseApplication([self = QPointer(this)](const std::optional<std::string>& bundleID) {
        if (self && bundleID)
            self->controller_.addCallApp(*bundleID);
    });
}

void SettingsModel::resetCallApps()
{
    controller_.resetCallApps();
}

void SettingsModel::chooseRecordingsFolder()
{
    //: On the button that confirms a folder.
    controller_.chooseRecordingsFolder(QCoreApplication::translate("SettingsModel", "Choose").toStdString());
}

void SettingsModel::chooseVolumeLimit(const QString& key)
{
    controller_.editSettings(
        [&](auto& settings) { settings.volumeLimit = fadeloom::volumeLimits.at(key.toUInt()); });
}

void SettingsModel::setAutoHeadroom(bool isOn)
{
    controller_.editSettings([&](auto& settings) { settings.eqAutoHeadroom = isOn; });
}

void SettingsModel::setTheme(int theme)
{
    controller_.editSettings(
        [&](auto& settings) { settings.appearance.theme = allThemes.at(static_cast<std::size_t>(theme)); });
}

void SettingsModel::setGlass(bool isOn)
{
    controller_.editSettings([&](auto& settings) { settings.appearance.glass = isOn; });
}

void SettingsModel::setAnimations(bool isOn)
{
    controller_.editSettings([&](auto& settings) { settings.appearance.animations = isOn; });
}

void SettingsModel::setLevelMeters(bool isOn)
{
    controller_.editSettings([&](auto& settings) { settings.appearance.levelMeters = isOn; });
}

void SettingsModel::setLaunchesAtLogin(bool isOn)
{
    controller_.setLaunchAtLogin(isOn);
}

void SettingsModel::chooseLanguage(const QString& code)
{
    language_ = code.toStdString();
    AppLanguage::set(parts_.userDefaults, language_);
    Q_EMIT languageChanged();
}

void SettingsModel::restart()
{
    AppLanguage::relaunch(parts_.workspace, parts_.quit);
}

void SettingsModel::resetApps()
{
    controller_.editSettings([](auto& settings) { settings.apps.clear(); });
}

void SettingsModel::openAboutPanel()
{
    AboutPanel::show(parts_.application, parts_.translate, parts_.webPage);
}

void SettingsModel::openWebPage()
{
    parts_.workspace.open(parts_.webPage);
}

}  // namespace fadeloom
