// SPDX-License-Identifier: MIT
#include "ui/SettingsModel.h"

#include "control/AudioController.h"
#include "ui/DisplayName.h"
#include "ui/PanelHost.h"
#include "ui/SettingsEditing.h"
#include "ui/ShortPath.h"
#include "ui/VolumeText.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <array>
#include <cstddef>

namespace fadeloom {
namespace {

constexpr const char* chooseKey = "choose";

struct Language {
    const char* code;
    const char* name;
};
// A language is called by its own name, in every language.
constexpr std::array languageChoices = {Language{"system", QT_TRANSLATE_NOOP("SettingsModel", "System")},
    Language{"en", "English"}, Language{"pl", "Polski"}};

QString words(const char* text)
{
    return QCoreApplication::translate("SettingsModel", text);
}

QString limitText(float limit)
{
    return limit == 1 ? words(QT_TRANSLATE_NOOP("SettingsModel", "100% (no boost)"))
                      : percentText(static_cast<double>(limit));
}

QString languageName(const Language& language)
{
    return language.code == std::string_view("system") ? words(language.name)
                                                       : QString::fromUtf8(language.name);
}

bool contains(const std::vector<std::string>& ids, const std::string& id)
{
    return std::ranges::find(ids, id) != ids.end();
}

}  // namespace

SettingsModel::SettingsModel(AudioController& controller, PanelHost& host, QObject* parent)
    : QObject(parent)
    , controller_(controller)
    , host_(host)
    , languageAtStart_(host.language())
    , language_(languageAtStart_)
{
}

bool SettingsModel::lowersOthers() const
{
    return settings().focus.enabled;
}

qreal SettingsModel::duckLevel() const
{
    return static_cast<qreal>(settings().focus.duckLevel);
}

QString SettingsModel::duckPercent() const
{
    return percentText(duckLevel());
}

QString SettingsModel::spokenDuckLevel() const
{
    return spokenPercent(duckLevel());
}

QVariantList SettingsModel::callApps() const
{
    MenuEntries entries;
    for (const auto& id : settings().focus.callApps)
        entries.push_back({.text = nameOf(id), .key = QString::fromStdString(id)});
    return variantsOf(entries);
}

QVariantList SettingsModel::offeredApps() const
{
    MenuEntries entries;
    for (const auto& app : *controller_.state().apps)
        if (!contains(settings().focus.callApps, app.bundleID))
            entries.push_back(
                {.text = QString::fromStdString(app.name), .key = QString::fromStdString(app.bundleID)});
    if (!entries.empty())
        entries.push_back({.kind = MenuEntry::Kind::separator});
    entries.push_back({.text = words(QT_TRANSLATE_NOOP("SettingsModel", "Choose from Applications…")),
        .key = QString::fromLatin1(chooseKey)});
    return variantsOf(entries);
}

QString SettingsModel::recordingsFolder() const
{
    return shortPath(controller_.recordingsFolder());
}

QString SettingsModel::volumeLimit() const
{
    return limitText(settings().volumeLimit);
}

QVariantList SettingsModel::volumeLimits() const
{
    MenuEntries entries;
    for (std::size_t i = 0; i < fadeloom::volumeLimits.size(); ++i)
        entries.push_back({.text = limitText(fadeloom::volumeLimits.at(i)),
            .key = QString::number(i),
            .isChecked = settings().volumeLimit == fadeloom::volumeLimits.at(i)});
    return variantsOf(entries);
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
    const auto found =
        std::ranges::find_if(languageChoices, [&](const Language& each) { return each.code == language_; });
    return languageName(found == languageChoices.end() ? languageChoices.front() : *found);
}

QVariantList SettingsModel::languages() const
{
    MenuEntries entries;
    for (const auto& each : languageChoices)
        entries.push_back({.text = languageName(each),
            .key = QString::fromLatin1(each.code),
            .isChecked = each.code == language_});
    return variantsOf(entries);
}

bool SettingsModel::needsRestart() const
{
    return language_ != languageAtStart_;
}

QString SettingsModel::version() const
{
    return QString::fromStdString(host_.version());
}

QString SettingsModel::webPageHost() const
{
    return QString::fromStdString(host_.webPageHost());
}

const SettingsData& SettingsModel::settings() const
{
    return *controller_.state().settings;
}

QString SettingsModel::nameOf(const std::string& bundleID) const
{
    return QString::fromStdString(
        displayName(settings(), bundleID, [this](const auto& id) { return host_.installedName(id); }));
}

void SettingsModel::setLowersOthers(bool isOn)
{
    editSettings(controller_, [&](auto& settings) { settings.focus.enabled = isOn; });
}

void SettingsModel::setDuckLevel(qreal level)
{
    editSettings(controller_, [&](auto& settings) { settings.focus.duckLevel = steppedDuckLevel(level); });
}

void SettingsModel::removeCallApp(const QString& bundleID)
{
    editSettings(
        controller_, [&](auto& settings) { std::erase(settings.focus.callApps, bundleID.toStdString()); });
}

void SettingsModel::addCallApp(const QString& key)
{
    if (key != QLatin1String(chooseKey))
        return appendCallApp(key.toStdString());
    host_.chooseApplication([self = QPointer(this)](const std::string& bundleID) {
        if (self)
            self->appendCallApp(bundleID);
    });
}

void SettingsModel::appendCallApp(const std::string& bundleID)
{
    if (contains(settings().focus.callApps, bundleID))
        return;
    editSettings(controller_, [&](auto& settings) { settings.focus.callApps.push_back(bundleID); });
}

void SettingsModel::resetCallApps()
{
    editSettings(
        controller_, [](auto& settings) { settings.focus.callApps = FocusSettings::defaultCallApps(); });
}

void SettingsModel::chooseRecordingsFolder()
{
    controller_.chooseRecordingsFolder();
}

void SettingsModel::chooseVolumeLimit(const QString& key)
{
    editSettings(
        controller_, [&](auto& settings) { settings.volumeLimit = fadeloom::volumeLimits.at(key.toUInt()); });
}

void SettingsModel::setAutoHeadroom(bool isOn)
{
    editSettings(controller_, [&](auto& settings) { settings.eqAutoHeadroom = isOn; });
}

void SettingsModel::setTheme(int theme)
{
    editSettings(controller_,
        [&](auto& settings) { settings.appearance.theme = allThemes.at(static_cast<std::size_t>(theme)); });
}

void SettingsModel::setGlass(bool isOn)
{
    editSettings(controller_, [&](auto& settings) { settings.appearance.glass = isOn; });
}

void SettingsModel::setAnimations(bool isOn)
{
    editSettings(controller_, [&](auto& settings) { settings.appearance.animations = isOn; });
}

void SettingsModel::setLevelMeters(bool isOn)
{
    editSettings(controller_, [&](auto& settings) { settings.appearance.levelMeters = isOn; });
}

void SettingsModel::setLaunchesAtLogin(bool isOn)
{
    controller_.setLaunchAtLogin(isOn);
}

void SettingsModel::chooseLanguage(const QString& code)
{
    language_ = code.toStdString();
    host_.setLanguage(language_);
    Q_EMIT languageChanged();
}

void SettingsModel::restart()
{
    host_.restart();
}

void SettingsModel::resetApps()
{
    editSettings(controller_, [](auto& settings) { settings.apps.clear(); });
}

void SettingsModel::openAboutPanel()
{
    host_.openAboutPanel();
}

void SettingsModel::openWebPage()
{
    host_.openWebPage();
}

}  // namespace fadeloom
