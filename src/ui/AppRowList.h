// SPDX-License-Identifier: MIT
// The mixer's rows as a list that views repeat over.
//
// A row lives as long as its app is listed, whatever the order becomes: what a view holds of it (that it is open, that a
// name is being typed) stays.
#pragma once

#include "control/AppEntry.h"
#include "platform/WallClock.h"
#include "ui/AppRowModel.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>
#include <vector>

namespace fadeloom {

class AudioController;

/// Thread: main.
class AppRowList : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the panel")

public:
    AppRowList(AudioController& controller, const WallClock& clock, QObject* parent);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    /// The row itself, under the role "row".
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Makes the list the controller's again, and has every row look again.
    void sync();
    void forEach(const std::function<void(AppRowModel&)>& action);

private:
    struct DeleteLater {
        void operator()(QObject* object) const { object->deleteLater(); }
    };
    // A row may go while one of its own buttons is being pressed.
    using Row = std::unique_ptr<AppRowModel, DeleteLater>;

    void removeUnlisted(const std::vector<AppEntry>& apps);
    void placeAt(std::size_t position, const AppEntry& app);

    AudioController& controller_;
    const WallClock& clock_;
    std::vector<Row> rows_;
};

}  // namespace fadeloom
