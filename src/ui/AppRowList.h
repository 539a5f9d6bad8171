// SPDX-License-Identifier: MIT
// The mixer's rows as a list model.
//
// A row object lives as long as its app is listed, regardless of reordering: the view's state for it (whether it is
// expanded, a name being typed) is kept.
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
    /// All arguments must outlive this.
    AppRowList(AudioController& controller, const WallClock& clock, MainLoop& mainLoop, QObject* parent);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    /// The row object, in the role "row".
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    struct DeleteLater {
        void operator()(QObject* object) const { object->deleteLater(); }
    };
    // Deferred deletion: a row may be removed while one of its own buttons is being pressed.
    using Row = std::unique_ptr<AppRowModel, DeleteLater>;

    /// The part of the settings that affects every row.
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
    std::optional<Subscription> elapsedTimer_;  // While anything is being recorded.
};

}  // namespace fadeloom
