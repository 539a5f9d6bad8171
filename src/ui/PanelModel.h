// SPDX-License-Identifier: MIT
// View model of the panel as a whole: its root view and its mixer.
//
// Its only state is the current page. Everything else is read from the controller whenever that announces a change, and
// worded for the views.
#pragma once

#include "base/Subscription.h"
#include "platform/DesktopAppearance.h"
#include "settings/AppearanceSettings.h"
#include "ui/AppRowList.h"
#include "ui/MenuEntry.h"
#include "ui/PanelParts.h"
#include "ui/SettingsModel.h"

#include <QColor>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <string>
#include <vector>

namespace fadeloom {

class AudioController;

/// Thread: main.
class PanelModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool showsSettings READ showsSettings WRITE setShowsSettings NOTIFY pageChanged)
    Q_PROPERTY(Page page READ page NOTIFY pageChanged)
    Q_PROPERTY(bool isAccessDenied READ isAccessDenied NOTIFY pageChanged)
    Q_PROPERTY(Banner banner READ banner NOTIFY bannerChanged)
    Q_PROPERTY(QString bannerText READ bannerText NOTIFY bannerChanged)
    Q_PROPERTY(QString output READ output NOTIFY outputsChanged)
    Q_PROPERTY(QVariantList outputEntries READ outputEntries NOTIFY outputsChanged)
    Q_PROPERTY(QString lastRecording READ lastRecording NOTIFY lastRecordingChanged)
    Q_PROPERTY(QString availableVersion READ availableVersion NOTIFY availableVersionChanged)
    Q_PROPERTY(bool isDark READ isDark NOTIFY appearanceChanged)
    Q_PROPERTY(bool glass READ glass NOTIFY appearanceChanged)
    Q_PROPERTY(bool animations READ animations NOTIFY appearanceChanged)
    Q_PROPERTY(bool hasHighContrast READ hasHighContrast NOTIFY appearanceChanged)
    Q_PROPERTY(double textScale READ textScale NOTIFY appearanceChanged)
    Q_PROPERTY(QColor accentInk READ accentInk NOTIFY appearanceChanged)
    Q_PROPERTY(QColor accentFill READ accentFill NOTIFY appearanceChanged)
    Q_PROPERTY(bool levelMeters READ levelMeters NOTIFY appearanceChanged)
    Q_PROPERTY(fadeloom::AppRowList* rows READ rows CONSTANT)
    Q_PROPERTY(fadeloom::SettingsModel* settings READ settings CONSTANT)

public:
    enum class Page { Mixer, Permission, Settings };
    Q_ENUM(Page)
    enum class Banner { None, Call, Error };
    Q_ENUM(Banner)

    /// `controller` must outlive this.
    PanelModel(AudioController& controller, const PanelParts& parts, QObject* parent = nullptr);

    [[nodiscard]] bool showsSettings() const { return showsSettings_; }
    void setShowsSettings(bool isShown);
    [[nodiscard]] Page page() const;
    [[nodiscard]] bool isAccessDenied() const;
    [[nodiscard]] Banner banner() const { return banner_.kind; }
    [[nodiscard]] QString bannerText() const { return banner_.text; }
    [[nodiscard]] QString output() const;
    [[nodiscard]] QVariantList outputEntries() const;
    /// The file's name; empty without a recording.
    [[nodiscard]] QString lastRecording() const;
    /// Empty if there is none.
    [[nodiscard]] QString availableVersion() const;
    [[nodiscard]] bool isDark() const;
    [[nodiscard]] bool glass() const;
    [[nodiscard]] bool animations() const;
    [[nodiscard]] bool hasHighContrast() const { return desktop_.hasHighContrast; }
    [[nodiscard]] double textScale() const { return desktop_.textScale; }
    /// The desktop's accent colour, adjusted for text in it and white text on it; transparent without one.
    [[nodiscard]] QColor accentInk() const;
    [[nodiscard]] QColor accentFill() const;
    [[nodiscard]] bool levelMeters() const;
    [[nodiscard]] AppRowList* rows() { return &rows_; }
    [[nodiscard]] SettingsModel* settings() { return &settings_; }

    /// `isDark` applies while the user's theme is "System"; reduced motion and high contrast always.
    void setDesktopAppearance(const DesktopAppearance& appearance);

    /// `key`: of an entry of `outputEntries`.
    Q_INVOKABLE void chooseOutput(const QString& key);
    Q_INVOKABLE void dismissError();
    Q_INVOKABLE void revealLastRecording();
    Q_INVOKABLE void requestPermission();
    Q_INVOKABLE void openPrivacySettings();
    Q_INVOKABLE void openDownloadPage();
    Q_INVOKABLE void quit();

Q_SIGNALS:
    void pageChanged();
    void bannerChanged();
    void outputsChanged();
    void lastRecordingChanged();
    void availableVersionChanged();
    void appearanceChanged();

private:
    struct ShownBanner {
        Banner kind = Banner::None;
        QString text{};

        friend bool operator==(const ShownBanner&, const ShownBanner&) = default;
    };

    void observe();
    void refreshBanner();
    void refreshAppearance();
    [[nodiscard]] ShownBanner readBanner() const;
    [[nodiscard]] QString callText(const std::string& bundleID) const;

    AudioController& controller_;
    const PanelParts parts_;
    bool showsSettings_ = false;
    DesktopAppearance desktop_{.isDark = true};
    AppRowList rows_;
    SettingsModel settings_;
    ShownBanner banner_;
    AppearanceSettings appearance_;

    std::vector<Subscription> observed_;
};

}  // namespace fadeloom
