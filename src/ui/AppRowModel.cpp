// SPDX-License-Identifier: MIT
#include "ui/AppRowModel.h"

#include "control/AudioController.h"
#include "ui/AppIconProvider.h"
#include "ui/ElapsedText.h"
#include "ui/OutputEntries.h"
#include "ui/SettingsEditing.h"
#include "ui/VolumeText.h"

#include <utility>

namespace fadeloom {

AppRowModel::AppRowModel(AudioController& controller, const WallClock& clock, AppEntry app, QObject* parent)
    : QObject(parent)
    , controller_(controller)
    , clock_(clock)
    , bundleID_(app.bundleID)
    , shown_(readState(std::move(app)))
    , eq_(controller, bundleID_, this)
{
    refreshLevel();
    refreshElapsed();
}

QString AppRowModel::iconSource() const
{
    return AppIconProvider::source(shown_.app);
}

QString AppRowModel::statusTone() const
{
    switch (shown_.status.kind) {
    case StatusLine::Kind::failed:
    case StatusLine::Kind::disconnected:
        return QStringLiteral("orange");
    case StatusLine::Kind::recording:
        return QStringLiteral("red");
    case StatusLine::Kind::onCall:
        return QStringLiteral("green");
    case StatusLine::Kind::lowered:
    case StatusLine::Kind::playing:
    case StatusLine::Kind::idle:
        break;
    }
    return QStringLiteral("secondary");
}

QString AppRowModel::percent() const
{
    return percentText(volume());
}

QString AppRowModel::spokenVolume() const
{
    return spokenPercent(volume());
}

void AppRowModel::toggleMuted()
{
    editAppSettings(controller_, bundleID_, [](auto& app) { app.muted = !app.muted; });
}

void AppRowModel::setVolume(qreal volume)
{
    const float limit = controller_.state().settings->volumeLimit;
    editAppSettings(controller_, bundleID_, [&](auto& app) { app.volume = snappedVolume(volume, limit); });
}

void AppRowModel::resetVolume()
{
    editAppSettings(controller_, bundleID_, [](auto& app) { app.volume = 1; });
}

void AppRowModel::retry()
{
    controller_.poll();
}

void AppRowModel::chooseOutput(const QString& key)
{
    editAppSettings(controller_, bundleID_,
        [&](auto& app) { app.outputUID = key.isEmpty() ? std::nullopt : std::optional(key.toStdString()); });
}

void AppRowModel::startRecording()
{
    controller_.startRecording(bundleID_);
}

void AppRowModel::stopRecording()
{
    controller_.stopRecording(bundleID_);
}

void AppRowModel::refresh(AppEntry app)
{
    const bool wasMuted = shown_.isMuted;
    if (auto now = readState(std::move(app)); now != shown_) {
        shown_ = std::move(now);
        Q_EMIT changed();
    }
    if (shown_.isMuted != wasMuted)
        Q_EMIT levelChanged();
    refreshElapsed();
    eq_.refresh();
}

void AppRowModel::refreshLevel()
{
    const auto& levels = *controller_.levels().levels();
    const auto found = levels.find(bundleID_);
    const float now = found == levels.end() ? 0 : found->second;
    if (std::exchange(level_, now) != now)
        Q_EMIT levelChanged();
}

void AppRowModel::refreshElapsed()
{
    const auto& recordings = *controller_.state().recordings;
    const auto found = recordings.find(bundleID_);
    const auto now = found == recordings.end() ? QString() : elapsedText(clock_.now() - found->second);
    if (std::exchange(elapsed_, now) != now)
        Q_EMIT elapsedChanged();
}

AppRowModel::Shown AppRowModel::readState(AppEntry app) const
{
    const auto& state = controller_.state();
    const auto settings = appSettings(*state.settings, bundleID_);
    auto status = statusLine(state, app);
    return {.app = std::move(app),
        .status = std::move(status),
        .isMuted = settings.muted,
        .volume = settings.volume,
        .volumeLimit = state.settings->volumeLimit,
        .output = appOutputLabel(state, bundleID_),
        .outputEntries = appOutputEntries(state, bundleID_),
        .isRecording = state.recordings->contains(bundleID_)};
}

}  // namespace fadeloom
