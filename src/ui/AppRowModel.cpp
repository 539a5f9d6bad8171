// SPDX-License-Identifier: MIT
#include "ui/AppRowModel.h"

#include "control/AppSettings.h"
#include "control/AudioController.h"
#include "ui/AppIconProvider.h"
#include "ui/ElapsedText.h"
#include "ui/OutputEntries.h"
#include "ui/SettingsEntries.h"

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

AppRowModel::Tone AppRowModel::statusTone() const
{
    switch (shown_.status.kind) {
    case StatusLine::Kind::failed:
    case StatusLine::Kind::outOfReach:
    case StatusLine::Kind::disconnected:
        return Tone::Warning;
    case StatusLine::Kind::recording:
        return Tone::Recording;
    case StatusLine::Kind::onCall:
        return Tone::Call;
    case StatusLine::Kind::lowered:
    case StatusLine::Kind::playing:
    case StatusLine::Kind::idle:
        break;
    }
    return Tone::Neutral;
}

QString AppRowModel::percent() const
{
    return percentText(volume());
}

QString AppRowModel::spokenVolume() const
{
    return spokenPercent(volume());
}

QVariantList AppRowModel::outputEntries() const
{
    return variantsOf(appOutputEntries(controller_.state(), bundleID_));
}

void AppRowModel::toggleMuted()
{
    controller_.editApp(bundleID_, [](auto& app) { app.muted = !app.muted; });
}

void AppRowModel::setVolume(qreal volume)
{
    const float limit = controller_.state().settings->volumeLimit;
    controller_.editApp(bundleID_, [&](auto& app) { app.volume = snappedVolume(volume, limit); });
}

void AppRowModel::resetVolume()
{
    controller_.editApp(bundleID_, [](auto& app) { app.volume = 1; });
}

void AppRowModel::retry()
{
    controller_.retryTap(bundleID_);
}

void AppRowModel::chooseOutput(const QString& key)
{
    controller_.editApp(bundleID_,
        [&](auto& app) { app.outputUID = key.isEmpty() ? std::nullopt : std::optional(key.toStdString()); });
}

void AppRowModel::acceptCallOffer()
{
    controller_.addCallApp(bundleID_);
}

void AppRowModel::declineCallOffer()
{
    controller_.removeCallApp(bundleID_);
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
    const bool wasMuted = isMuted();
    if (auto now = readState(std::move(app)); now != shown_) {
        shown_ = std::move(now);
        Q_EMIT changed();
    }
    Q_EMIT outputsChanged();
    if (isMuted() != wasMuted)
        Q_EMIT levelChanged();
    refreshElapsed();
    eq_.refresh();
}

void AppRowModel::takeSettings()
{
    if (appSettings(*controller_.state().settings, bundleID_) != shown_.settings)
        refresh();
    else
        Q_EMIT eq_.presetsChanged();
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
    auto status = statusLine(state, app);
    auto offer = state.callOffers->contains(bundleID_) ? callOfferText(app.name) : QString();
    return {.app = std::move(app),
        .status = std::move(status),
        .settings = appSettings(*state.settings, bundleID_),
        .volumeLimit = state.settings->volumeLimit,
        .output = appOutputLabel(state, bundleID_),
        .callOffer = std::move(offer),
        .isRecording = state.recordings->contains(bundleID_)};
}

}  // namespace fadeloom
