// SPDX-License-Identifier: MIT
// One row of the mixer as a view shows and edits it.
#pragma once

#include "control/AppEntry.h"
#include "platform/WallClock.h"
#include "ui/EQModel.h"
#include "ui/MenuEntry.h"
#include "ui/StatusLine.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

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
    Q_PROPERTY(QString statusTone READ statusTone NOTIFY changed)
    Q_PROPERTY(bool canRetry READ canRetry NOTIFY changed)
    Q_PROPERTY(bool isMuted READ isMuted NOTIFY changed)
    Q_PROPERTY(qreal volume READ volume NOTIFY changed)
    Q_PROPERTY(qreal volumeLimit READ volumeLimit NOTIFY changed)
    Q_PROPERTY(bool isBoosted READ isBoosted NOTIFY changed)
    Q_PROPERTY(QString percent READ percent NOTIFY changed)
    Q_PROPERTY(QString spokenVolume READ spokenVolume NOTIFY changed)
    Q_PROPERTY(QString output READ output NOTIFY changed)
    Q_PROPERTY(QVariantList outputEntries READ outputEntries NOTIFY changed)
    Q_PROPERTY(bool isRecording READ isRecording NOTIFY changed)
    Q_PROPERTY(QString elapsed READ elapsed NOTIFY elapsedChanged)
    Q_PROPERTY(qreal level READ level NOTIFY levelChanged)
    Q_PROPERTY(fadeloom::EQModel* eq READ eq CONSTANT)

public:
    AppRowModel(AudioController& controller, const WallClock& clock, AppEntry app, QObject* parent);

    [[nodiscard]] const std::string& id() const { return bundleID_; }

    [[nodiscard]] QString bundleID() const { return QString::fromStdString(bundleID_); }
    [[nodiscard]] QString name() const { return QString::fromStdString(shown_.app.name); }
    [[nodiscard]] QString iconSource() const;
    [[nodiscard]] QString status() const { return shown_.status.text; }
    [[nodiscard]] QString statusHelp() const { return shown_.status.help; }
    [[nodiscard]] QString statusSymbol() const { return shown_.status.symbol; }
    /// The name of the colour that the status has: "secondary", "orange", "red" or "green".
    [[nodiscard]] QString statusTone() const;
    [[nodiscard]] bool canRetry() const { return shown_.status.kind == StatusLine::Kind::failed; }
    [[nodiscard]] bool isMuted() const { return shown_.isMuted; }
    [[nodiscard]] qreal volume() const { return static_cast<qreal>(shown_.volume); }
    [[nodiscard]] qreal volumeLimit() const { return static_cast<qreal>(shown_.volumeLimit); }
    [[nodiscard]] bool isBoosted() const { return shown_.volume > 1; }
    [[nodiscard]] QString percent() const;
    [[nodiscard]] QString spokenVolume() const;
    [[nodiscard]] QString output() const { return shown_.output; }
    [[nodiscard]] QVariantList outputEntries() const { return variantsOf(shown_.outputEntries); }
    [[nodiscard]] bool isRecording() const { return shown_.isRecording; }
    /// How long the recording has been going on; empty without one.
    [[nodiscard]] QString elapsed() const { return elapsed_; }
    /// The meter's position, 0 to 1; 0 while the app is muted.
    [[nodiscard]] qreal level() const { return shown_.isMuted ? 0 : static_cast<qreal>(level_); }
    [[nodiscard]] EQModel* eq() { return &eq_; }

    Q_INVOKABLE void toggleMuted();
    Q_INVOKABLE void setVolume(qreal volume);
    Q_INVOKABLE void resetVolume();
    Q_INVOKABLE void retry();
    /// `key`: of an entry of `outputEntries`.
    Q_INVOKABLE void chooseOutput(const QString& key);
    Q_INVOKABLE void startRecording();
    Q_INVOKABLE void stopRecording();

    /// Looks at the controller again.
    void refresh(AppEntry app);
    void refresh() { refresh(shown_.app); }
    void refreshLevel();
    void refreshElapsed();

Q_SIGNALS:
    void changed();
    void levelChanged();
    void elapsedChanged();

private:
    struct Shown {
        AppEntry app{};
        StatusLine status{};
        bool isMuted = false;
        float volume = 1;
        float volumeLimit = 1;
        QString output{};
        MenuEntries outputEntries{};
        bool isRecording = false;

        friend bool operator==(const Shown&, const Shown&) = default;
    };
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
