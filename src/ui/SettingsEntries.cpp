// SPDX-License-Identifier: MIT
#include "ui/SettingsEntries.h"

#include "shell/AppLanguage.h"
#include "ui/VolumeText.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstddef>
#include <set>

namespace fadeloom {
namespace {

QString words(const char* text)
{
    return QCoreApplication::translate("SettingsEntries", text);
}

QString nameOf(const AppLanguage::Choice& choice)
{
    return choice.ownName.empty() ? words(QT_TRANSLATE_NOOP("SettingsEntries", "System"))
                                  : QString::fromUtf8(choice.ownName);
}

}  // namespace

MenuEntries callAppEntries(
    const SettingsData& settings, const CallApps& callApps, const InstalledName& installedName)
{
    MenuEntries entries;
    std::set<std::string> named;
    for (const auto& id : settings.focus.callApps) {
        const auto identifiers = callApps.identifiersOf(id);
        if (!named.contains(id))
            entries.push_back(
                {.text = QString::fromStdString(displayName(settings, callApps, id, installedName)),
                    .key = QString::fromStdString(id)});
        named.insert(identifiers.begin(), identifiers.end());
    }
    return entries;
}

QString callOfferText(const std::string& appName)
{
    //: The name of an app.
    return words(QT_TRANSLATE_NOOP("SettingsEntries", "Lower others during calls in %1"))
        .arg(QString::fromStdString(appName));
}

MenuEntries offeredAppEntries(const ControllerState& state)
{
    MenuEntries offered;
    MenuEntries others;
    for (const auto& app : *state.apps) {
        const auto key = QString::fromStdString(app.bundleID);
        if (state.callOffers->contains(app.bundleID))
            offered.push_back({.text = callOfferText(app.name), .key = key});
        else if (!isCallApp(state.settings->focus, app.callIDs))
            others.push_back({.text = QString::fromStdString(app.name), .key = key});
    }
    MenuEntries entries;
    for (const auto& group : {offered, others}) {
        entries.insert(entries.end(), group.begin(), group.end());
        if (!group.empty())
            entries.push_back({.kind = MenuEntry::Kind::separator});
    }
    entries.push_back({.text = words(QT_TRANSLATE_NOOP("SettingsEntries", "Choose from Applications…")),
        .key = QString::fromLatin1(chooseAppKey)});
    return entries;
}

QString volumeLimitText(float limit)
{
    return limit == 1 ? words(QT_TRANSLATE_NOOP("SettingsEntries", "100% (no boost)"))
                      : percentText(static_cast<double>(limit));
}

MenuEntries volumeLimitEntries(float current)
{
    MenuEntries entries;
    for (std::size_t i = 0; i < volumeLimits.size(); ++i)
        entries.push_back({.text = volumeLimitText(volumeLimits.at(i)),
            .key = QString::number(i),
            .isChecked = current == volumeLimits.at(i)});
    return entries;
}

QString languageName(const std::string& code)
{
    return nameOf(*std::ranges::find(AppLanguage::choices, code, &AppLanguage::Choice::code));
}

MenuEntries languageEntries(const std::string& current)
{
    MenuEntries entries;
    for (const auto& each : AppLanguage::choices)
        entries.push_back(
            {.text = nameOf(each), .key = QString::fromUtf8(each.code), .isChecked = each.code == current});
    return entries;
}

}  // namespace fadeloom
