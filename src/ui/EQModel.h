// SPDX-License-Identifier: MIT
// View model of one app's equalizer.
#pragma once

#include "engine/EqualizerDesign.h"
#include "ui/MenuEntry.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <array>
#include <string>

namespace fadeloom {

class AudioController;

/// Gains are in decibels, the lowest band first. Thread: main.
class EQModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its row")
    Q_PROPERTY(bool isEnabled READ isEnabled NOTIFY changed)
    Q_PROPERTY(QString presetTitle READ presetTitle NOTIFY changed)
    Q_PROPERTY(QList<qreal> gains READ gains NOTIFY changed)
    Q_PROPERTY(qreal preamp READ preamp NOTIFY changed)
    Q_PROPERTY(QString preampText READ preampText NOTIFY changed)
    Q_PROPERTY(QString spokenPreamp READ spokenPreamp NOTIFY changed)
    Q_PROPERTY(QVariantList presetEntries READ presetEntries NOTIFY presetsChanged)
    Q_PROPERTY(QVariantList actionEntries READ actionEntries NOTIFY presetsChanged)
    Q_PROPERTY(QVariantList deleteEntries READ deleteEntries NOTIFY presetsChanged)

public:
    EQModel(AudioController& controller, std::string bundleID, QObject* parent);

    [[nodiscard]] bool isEnabled() const { return shown_.isEnabled; }
    [[nodiscard]] QString presetTitle() const { return shown_.presetTitle; }
    [[nodiscard]] QList<qreal> gains() const;
    [[nodiscard]] qreal preamp() const { return static_cast<qreal>(shown_.preamp); }
    [[nodiscard]] QString preampText() const;
    [[nodiscard]] QString spokenPreamp() const;
    // Menus are built for each call: views read them while one is open.
    /// The built-in presets in groups, then the user's.
    [[nodiscard]] QVariantList presetEntries() const;
    /// The menu's actions below the presets.
    [[nodiscard]] QVariantList actionEntries() const;
    [[nodiscard]] QVariantList deleteEntries() const;

    Q_INVOKABLE QString bandLabel(int band) const;
    Q_INVOKABLE QString bandHelp(int band, qreal gain) const;
    Q_INVOKABLE QString spokenBand(int band) const;
    Q_INVOKABLE QString spokenGain(qreal gain) const;

    Q_INVOKABLE void setEnabled(bool isEnabled);
    /// The curve loses its preset's name, and takes effect.
    Q_INVOKABLE void setGain(int band, qreal gain);
    Q_INVOKABLE void setPreamp(qreal preamp);
    Q_INVOKABLE void applyPreset(const QString& key);
    Q_INVOKABLE void resetToFlat();
    Q_INVOKABLE void savePreset(const QString& name);
    Q_INVOKABLE void deletePreset(const QString& name);

    /// Updates everything that is shown from the controller.
    void refresh();

Q_SIGNALS:
    void changed();
    void presetsChanged();

private:
    struct Shown {
        bool isEnabled = false;
        QString presetTitle{};
        std::array<float, eqBandCount> gains{};
        float preamp = 0;

        friend bool operator==(const Shown&, const Shown&) = default;
    };
    [[nodiscard]] Shown readState() const;

    AudioController& controller_;
    const std::string bundleID_;
    Shown shown_;
};

}  // namespace fadeloom
