// SPDX-License-Identifier: MIT
// View model of one row of the mixer.
#pragma once

#include "control/AppEntry.h"
#include "platform/WallClock.h"
#include "settings/AppAudioSettings.h"
#include "ui/EQModel.h"
#include "ui/MenuEntry.h"
#include "ui/StatusLine.h"
#include "ui/VolumeText.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <algorithm>
#include <string>

namespace fadeloom {

class AudioController;

/// Thread: main.
class AppRowModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the panel")
    Q_PROPERTY(QString bundleID READ bundleID CONSTANT)
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(QString iconSource READ iconSource NOTIFY changed)
    Q_PROPERTY(QString status READ status NOTIFY changed)
    Q_PROPERTY(QString statusHelp READ statusHelp NOTIFY changed)
    Q_PROPERTY(QString statusSymbol READ statusSymbol NOTIFY changed)
    Q_PROPERTY(Tone statusTone READ statusTone NOTIFY changed)
    Q_PROPERTY(bool canRetry READ canRetry NOTIFY changed)
    Q_PROPERTY(bool isMuted READ isMuted NOTIFY changed)
    Q_PROPERTY(qreal volumePercent READ volumePercent NOTIFY changed)
    Q_PROPERTY(qreal limitPercent READ limitPercent NOTIFY changed)
    Q_PROPERTY(bool isBoosted READ isBoosted NOTIFY changed)
    Q_PROPERTY(QString percent READ percent NOTIFY changed)
    Q_PROPERTY(QString spokenVolume READ spokenVolume NOTIFY changed)
    Q_PROPERTY(QString output READ output NOTIFY changed)
    Q_PROPERTY(QVariantList outputEntries READ outputEntries NOTIFY outputsChanged)
    Q_PROPERTY(QString callOffer READ callOffer NOTIFY changed)
    Q_PROPERTY(bool isRecording READ isRecording NOTIFY changed)
    Q_PROPERTY(QString elapsed READ elapsed NOTIFY elapsedChanged)
    Q_PROPERTY(qreal level READ level NOTIFY levelChanged)
    Q_PROPERTY(fadeloom::EQModel* eq READ eq CONSTANT)

public:
    /// The severity of a status, which selects its colour.
    enum class Tone { Neutral, Warning, Recording, Call };
    Q_ENUM(Tone)

    AppRowModel(AudioController& controller, const WallClock& clock, AppEntry app, QObject* parent);

    [[nodiscard]] const std::string& id() const { return bundleID_; }

    [[nodiscard]] QString bundleID() const { return QString::fromStdString(bundleID_); }
    [[nodiscard]] QString name() const { return QString::fromStdString(shown_.app.name); }
    [[nodiscard]] QString iconSource() const;
    [[nodiscard]] QString status() const { return shown_.status.text; }
    [[nodiscard]] QString statusHelp() const { return shown_.status.help; }
    [[nodiscard]] QString statusSymbol() const { return shown_.status.symbol; }
    [[nodiscard]] Tone statusTone() const;
    [[nodiscard]] bool canRetry() const { return shown_.status.kind == StatusLine::Kind::failed; }
    [[nodiscard]] bool isMuted() const { return shown_.settings.muted; }
    /// The effective volume: clamped to the limit even if a higher one is stored.
    [[nodiscard]] qreal volume() const { return static_cast<qreal>(audibleVolume()); }
    [[nodiscard]] qreal volumeLimit() const { return static_cast<qreal>(shown_.volumeLimit); }
    [[nodiscard]] qreal volumePercent() const { return percentOf(audibleVolume()); }
    [[nodiscard]] qreal limitPercent() const { return percentOf(shown_.volumeLimit); }
    [[nodiscard]] bool isBoosted() const { return audibleVolume() > 1; }
    [[nodiscard]] QString percent() const;
    [[nodiscard]] QString spokenVolume() const;
    [[nodiscard]] QString output() const { return shown_.output; }
    /// Built for each call: views read it while the menu is open.
    [[nodiscard]] QVariantList outputEntries() const;
    /// The effect of accepting; empty while the app is not suggested as a call app.
    [[nodiscard]] QString callOffer() const { return shown_.callOffer; }
    [[nodiscard]] bool isRecording() const { return shown_.isRecording; }
    /// Elapsed time of the recording; empty without one.
    [[nodiscard]] QString elapsed() const { return elapsed_; }
    /// The meter's position, 0 to 1; 0 while the app is muted.
    [[nodiscard]] qreal level() const { return shown_.settings.muted ? 0 : static_cast<qreal>(level_); }
    [[nodiscard]] EQModel* eq() { return &eq_; }

    Q_INVOKABLE void toggleMuted();
    void setVolume(qreal volume);
    Q_INVOKABLE void setVolumePercent(qreal percent) { setVolume(percent / 100); }
    Q_INVOKABLE void resetVolume();
    Q_INVOKABLE void retry();
    /// `key`: of an entry of `outputEntries`.
    Q_INVOKABLE void chooseOutput(const QString& key);
    Q_INVOKABLE void acceptCallOffer();
    Q_INVOKABLE void declineCallOffer();
    Q_INVOKABLE void startRecording();
    Q_INVOKABLE void stopRecording();

    /// Updates everything that the row shows from the controller.
    void refresh(AppEntry app);
    void refresh() { refresh(shown_.app); }
    /// The same if this app's settings differ from those shown; the preset menu may have changed anyway.
    void takeSettings();
    void refreshLevel();
    void refreshElapsed();

Q_SIGNALS:
    void changed();
    void outputsChanged();
    void levelChanged();
    void elapsedChanged();

private:
    struct Shown {
        AppEntry app{};
        StatusLine status{};
        AppAudioSettings settings{};
        float volumeLimit = 1;
        QString output{};
        QString callOffer{};
        bool isRecording = false;

        friend bool operator==(const Shown&, const Shown&) = default;
    };
    [[nodiscard]] float audibleVolume() const { return std::min(shown_.settings.volume, shown_.volumeLimit); }
    [[nodiscard]] Shown readState(AppEntry app) const;

    AudioController& controller_;
    const WallClock& clock_;
    const std::string bundleID_;
    Shown shown_;
    float level_ = 0;
    QString elapsed_;
    EQModel eq_;
};

}  // namespace fadeloom
