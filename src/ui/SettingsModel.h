// SPDX-License-Identifier: MIT
// View model of the settings page.
#pragma once

#include "base/Subscription.h"
#include "control/AudioController.h"
#include "settings/SettingsData.h"
#include "ui/MenuEntry.h"
#include "ui/PanelParts.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <string>
#include <vector>

namespace fadeloom {

/// Thread: main.
class SettingsModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the panel")
    Q_PROPERTY(bool lowersOthers READ lowersOthers NOTIFY changed)
    Q_PROPERTY(qreal duckLevelPercent READ duckLevelPercent NOTIFY changed)
    Q_PROPERTY(QString duckPercent READ duckPercent NOTIFY changed)
    Q_PROPERTY(QString spokenDuckLevel READ spokenDuckLevel NOTIFY changed)
    Q_PROPERTY(QVariantList callApps READ callApps NOTIFY changed)
    Q_PROPERTY(QVariantList offeredApps READ offeredApps NOTIFY offeredAppsChanged)
    Q_PROPERTY(QString recordingsFolder READ recordingsFolder NOTIFY changed)
    Q_PROPERTY(QString volumeLimit READ volumeLimit NOTIFY changed)
    Q_PROPERTY(QVariantList volumeLimits READ volumeLimits NOTIFY changed)
    Q_PROPERTY(bool isBoostAllowed READ isBoostAllowed NOTIFY changed)
    Q_PROPERTY(bool hasAutoHeadroom READ hasAutoHeadroom NOTIFY changed)
    Q_PROPERTY(int theme READ theme NOTIFY changed)
    Q_PROPERTY(bool glass READ glass NOTIFY changed)
    Q_PROPERTY(bool animations READ animations NOTIFY changed)
    Q_PROPERTY(bool levelMeters READ levelMeters NOTIFY changed)
    Q_PROPERTY(bool launchesAtLogin READ launchesAtLogin NOTIFY changed)
    Q_PROPERTY(QString language READ language NOTIFY languageChanged)
    Q_PROPERTY(QVariantList languages READ languages NOTIFY languageChanged)
    Q_PROPERTY(bool needsRestart READ needsRestart NOTIFY languageChanged)
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(QString webPageHost READ webPageHost CONSTANT)

public:
    SettingsModel(AudioController& controller, const PanelParts& parts, QObject* parent);

    [[nodiscard]] bool lowersOthers() const;
    [[nodiscard]] qreal duckLevelPercent() const;
    [[nodiscard]] QString duckPercent() const;
    [[nodiscard]] QString spokenDuckLevel() const;
    /// Names, with the bundle identifiers as keys.
    [[nodiscard]] QVariantList callApps() const;
    /// What can be added to them. The last entry, with the key "choose", is for choosing any application.
    [[nodiscard]] QVariantList offeredApps() const;
    [[nodiscard]] QString recordingsFolder() const;
    [[nodiscard]] QString volumeLimit() const;
    [[nodiscard]] QVariantList volumeLimits() const;
    [[nodiscard]] bool isBoostAllowed() const;
    [[nodiscard]] bool hasAutoHeadroom() const;
    /// An index in `allThemes`.
    [[nodiscard]] int theme() const;
    [[nodiscard]] bool glass() const;
    [[nodiscard]] bool animations() const;
    [[nodiscard]] bool levelMeters() const;
    [[nodiscard]] bool launchesAtLogin() const;
    [[nodiscard]] QString language() const;
    [[nodiscard]] QVariantList languages() const;
    /// Whether the selected language differs from the one in use.
    [[nodiscard]] bool needsRestart() const;
    [[nodiscard]] QString version() const;
    [[nodiscard]] QString webPageHost() const;

    Q_INVOKABLE void setLowersOthers(bool isOn);
    void setDuckLevel(qreal level);
    Q_INVOKABLE void setDuckLevelPercent(qreal percent) { setDuckLevel(percent / 100); }
    Q_INVOKABLE void removeCallApp(const QString& bundleID);
    Q_INVOKABLE void addCallApp(const QString& key);
    Q_INVOKABLE void resetCallApps();
    Q_INVOKABLE void chooseRecordingsFolder();
    Q_INVOKABLE void chooseVolumeLimit(const QString& key);
    Q_INVOKABLE void setAutoHeadroom(bool isOn);
    Q_INVOKABLE void setTheme(int theme);
    Q_INVOKABLE void setGlass(bool isOn);
    Q_INVOKABLE void setAnimations(bool isOn);
    Q_INVOKABLE void setLevelMeters(bool isOn);
    Q_INVOKABLE void setLaunchesAtLogin(bool isOn);
    Q_INVOKABLE void chooseLanguage(const QString& code);
    Q_INVOKABLE void restart();
    /// Resets every app to its defaults, without confirmation or undo.
    Q_INVOKABLE void resetApps();
    Q_INVOKABLE void openAboutPanel();
    Q_INVOKABLE void openWebPage();

Q_SIGNALS:
    void changed();
    void offeredAppsChanged();
    void languageChanged();

private:
    void observe();
    [[nodiscard]] const SettingsData& settings() const { return *controller_.state().settings; }

    AudioController& controller_;
    const PanelParts parts_;
    const std::string languageAtStart_;
    std::string language_;
    SettingsData shown_;  // Without apps and presets, which other views show.

    std::vector<Subscription> observed_;
};

}  // namespace fadeloom
