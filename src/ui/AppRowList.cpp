// SPDX-License-Identifier: MIT
#include "ui/AppRowList.h"

#include "control/AudioController.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace fadeloom {

AppRowList::AppRowList(
    AudioController& controller, const WallClock& clock, MainLoop& mainLoop, QObject* parent)
    : QAbstractListModel(parent)
    , controller_(controller)
    , clock_(clock)
    , mainLoop_(mainLoop)
    , common_(readCommon())
{
    sync();
    observe();
    updateElapsedTimer();
}

void AppRowList::observe()
{
    const auto& state = controller_.state();
    const auto whenAssigned = [this](const auto& published, auto callback) {
        observed_.push_back(published.whenAssigned(callback));
    };
    const auto refresh = [this] { refreshRows(); };
    whenAssigned(state.apps, [this] { sync(); });
    whenAssigned(state.settings, [this] { takeSettings(); });
    whenAssigned(state.devices, refresh);
    whenAssigned(state.defaultDeviceUID, refresh);
    whenAssigned(state.callApp, refresh);
    whenAssigned(state.tapErrors, refresh);
    whenAssigned(state.callOffers, refresh);
    whenAssigned(state.missingOutput, refresh);
    whenAssigned(state.recordings, [this] {
        refreshRows();
        updateElapsedTimer();
    });
    whenAssigned(controller_.levels().levels(), [this] {
        for (const auto& row : rows_)
            row->refreshLevel();
    });
}

int AppRowList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant AppRowList::data(const QModelIndex& index, int role) const
{
    if (role != Qt::UserRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    return QVariant::fromValue(rows_.at(static_cast<std::size_t>(index.row())).get());
}

QHash<int, QByteArray> AppRowList::roleNames() const
{
    return {{Qt::UserRole, "row"}};
}

void AppRowList::sync()
{
    const auto apps = *controller_.state().apps;
    removeUnlisted(apps);
    for (std::size_t position = 0; position < apps.size(); ++position)
        placeAt(position, apps.at(position));
}

void AppRowList::takeSettings()
{
    if (auto now = readCommon(); now != common_) {
        common_ = std::move(now);
        refreshRows();
        return;
    }
    for (const auto& row : rows_)
        row->takeSettings();
}

void AppRowList::refreshRows()
{
    for (const auto& row : rows_)
        row->refresh();
}

void AppRowList::updateElapsedTimer()
{
    if (controller_.state().recordings->empty()) {
        elapsedTimer_.reset();
    } else if (!elapsedTimer_) {
        elapsedTimer_ = mainLoop_.every(std::chrono::seconds(1), [this] {
            for (const auto& row : rows_)
                row->refreshElapsed();
        });
    }
}

AppRowList::Common AppRowList::readCommon() const
{
    const auto& settings = *controller_.state().settings;
    return {.volumeLimit = settings.volumeLimit, .focus = settings.focus};
}

void AppRowList::removeUnlisted(const std::vector<AppEntry>& apps)
{
    for (auto position = static_cast<int>(rows_.size()) - 1; position >= 0; --position) {
        const auto row = rows_.begin() + position;
        if (std::ranges::find(apps, (*row)->id(), &AppEntry::bundleID) != apps.end())
            continue;
        beginRemoveRows({}, position, position);
        const auto gone = std::move(*row);
        rows_.erase(row);
        endRemoveRows();
    }
}

void AppRowList::placeAt(std::size_t position, const AppEntry& app)
{
    const auto place = rows_.begin() + static_cast<std::ptrdiff_t>(position);
    const auto at = static_cast<int>(position);
    const auto found = std::ranges::find(rows_, app.bundleID, [](const Row& row) { return row->id(); });
    if (found == rows_.end()) {
        beginInsertRows({}, at, at);
        rows_.insert(place, Row(new AppRowModel(controller_, clock_, app, this)));
        endInsertRows();
        return;
    }
    if (found != place) {
        const auto from = static_cast<int>(found - rows_.begin());
        beginMoveRows({}, from, from, {}, at);
        std::rotate(place, found, found + 1);
        endMoveRows();
    }
    rows_.at(position)->refresh(app);
}

}  // namespace fadeloom
