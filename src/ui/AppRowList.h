// SPDX-License-Identifier: MIT
// The mixer's rows as a list that views repeat over.
//
// A row lives as long as its app is listed, whatever the order becomes: what a view holds of it (that it is open, that a
// name is being typed) stays.
#pragma once

#include "base/Subscription.h"
#include "control/AppEntry.h"
#include "platform/MainLoop.h"
#include "platform/WallClock.h"
#include "settings/FocusSettings.h"
#include "ui/AppRowModel.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <optional>
#include <vector>

namespace fadeloom {

class AudioController;

/// Thread: main.
class AppRowList : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the panel")

public:
    /// All must outlive this.
    AppRowList(AudioController& controller, const WallClock& clock, MainLoop& mainLoop, QObject* parent);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    /// The row itself, under the role "row".
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    struct DeleteLater {
        void operator()(QObject* object) const { object->deleteLater(); }
    };
    // A row may go while one of its own buttons is being pressed.
    using Row = std::unique_ptr<AppRowModel, DeleteLater>;

    /// What of the settings shows in every row.
    struct Common {
        float volumeLimit = 1;
        FocusSettings focus{};

        friend bool operator==(const Common&, const Common&) = default;
    };

    void observe();
    void sync();
    void takeSettings();
    void refreshRows();
    void updateElapsedTimer();
    [[nodiscard]] Common readCommon() const;
    void removeUnlisted(const std::vector<AppEntry>& apps);
    void placeAt(std::size_t position, const AppEntry& app);

    AudioController& controller_;
    const WallClock& clock_;
    MainLoop& mainLoop_;
    std::vector<Row> rows_;
    Common common_;

    std::vector<Subscription> observed_;
    std::optional<Subscription> elapsedTimer_;  // While anything is recorded.
};

}  // namespace fadeloom
