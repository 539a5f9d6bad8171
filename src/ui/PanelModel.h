// SPDX-License-Identifier: MIT
// The panel as a whole: what its root view and its mixer show, and what they ask for.
//
// It holds no state of the program but which page is shown. Everything else is read from the controller whenever the
// controller announces a change, and worded for the views.
#pragma once

#include "base/Subscription.h"
#include "platform/Platform.h"
#include "ui/AppRowList.h"
#include "ui/MenuEntry.h"
#include "ui/SettingsModel.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <vector>

namespace fadeloom {

class AudioController;
class PanelHost;

/// Thread: main.
class PanelModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool showsSettings READ showsSettings WRITE setShowsSettings NOTIFY changed)
    Q_PROPERTY(QString page READ page NOTIFY changed)
    Q_PROPERTY(bool isAccessDenied READ isAccessDenied NOTIFY changed)
    Q_PROPERTY(QString bannerKind READ bannerKind NOTIFY changed)
    Q_PROPERTY(QString bannerText READ bannerText NOTIFY changed)
    Q_PROPERTY(QString output READ output NOTIFY changed)
    Q_PROPERTY(QVariantList outputEntries READ outputEntries NOTIFY changed)
    Q_PROPERTY(QString lastRecording READ lastRecording NOTIFY changed)
    Q_PROPERTY(QString availableVersion READ availableVersion NOTIFY changed)
    Q_PROPERTY(bool isDark READ isDark NOTIFY changed)
    Q_PROPERTY(bool glass READ glass NOTIFY changed)
    Q_PROPERTY(bool animations READ animations NOTIFY changed)
    Q_PROPERTY(bool levelMeters READ levelMeters NOTIFY changed)
    Q_PROPERTY(fadeloom::AppRowList* rows READ rows CONSTANT)
    Q_PROPERTY(fadeloom::SettingsModel* settings READ settings CONSTANT)

public:
    /// `controller`, `host` and the parts of `platform` must outlive this.
    PanelModel(
        AudioController& controller, const Platform& platform, PanelHost& host, QObject* parent = nullptr);

    [[nodiscard]] bool showsSettings() const { return showsSettings_; }
    void setShowsSettings(bool isShown);
    /// "settings", "permission" or "mixer".
    [[nodiscard]] QString page() const;
    [[nodiscard]] bool isAccessDenied() const;
    /// "call", "error", or empty for none.
    [[nodiscard]] QString bannerKind() const;
    [[nodiscard]] QString bannerText() const;
    [[nodiscard]] QString output() const;
    [[nodiscard]] QVariantList outputEntries() const;
    /// The file's name; empty without a recording.
    [[nodiscard]] QString lastRecording() const;
    /// Empty when there is none.
    [[nodiscard]] QString availableVersion() const;
    [[nodiscard]] bool isDark() const;
    [[nodiscard]] bool glass() const;
    [[nodiscard]] bool animations() const;
    [[nodiscard]] bool levelMeters() const;
    [[nodiscard]] AppRowList* rows() { return &rows_; }
    [[nodiscard]] SettingsModel* settings() { return &settings_; }

    /// The system's look, which counts while the user's theme is "System".
    void setSystemIsDark(bool isDark);

    /// `key`: of an entry of `outputEntries`.
    Q_INVOKABLE void chooseOutput(const QString& key);
    Q_INVOKABLE void dismissError();
    Q_INVOKABLE void revealLastRecording();
    Q_INVOKABLE void requestPermission();
    Q_INVOKABLE void openPrivacySettings();
    Q_INVOKABLE void openDownloadPage();
    Q_INVOKABLE void quit();

Q_SIGNALS:
    /// What the panel shows is to be read again.
    void changed();

private:
    void observe();
    void refresh();
    void updateElapsedTimer();
    [[nodiscard]] QString callText(const std::string& bundleID) const;

    AudioController& controller_;
    MainLoop& mainLoop_;
    PanelHost& host_;
    bool showsSettings_ = false;
    bool systemIsDark_ = true;
    AppRowList rows_;
    SettingsModel settings_;

    std::vector<Subscription> observed_;
    std::optional<Subscription> elapsedTimer_;  // While anything is recorded.
};

}  // namespace fadeloom
