// SPDX-License-Identifier: MIT
#include "ui/PanelModel.h"

#include "control/AudioController.h"
#include "platform/MainLoop.h"
#include "ui/MessageText.h"
#include "ui/OutputEntries.h"
#include "ui/PanelHost.h"
#include "ui/VolumeText.h"

#include <QCoreApplication>

#include <algorithm>
#include <chrono>

namespace fadeloom {

PanelModel::PanelModel(
    AudioController& controller, const Platform& platform, PanelHost& host, QObject* parent)
    : QObject(parent)
    , controller_(controller)
    , mainLoop_(platform.mainLoop)
    , host_(host)
    , rows_(controller, platform.clock, this)
    , settings_(controller, host, this)
{
    observe();
    updateElapsedTimer();
}

void PanelModel::observe()
{
    const auto& state = controller_.state();
    const auto whenAssigned = [this](const auto& published, auto callback) {
        observed_.push_back(published.whenAssigned(callback));
    };
    const auto refreshAll = [this] { refresh(); };
    whenAssigned(state.apps, refreshAll);
    whenAssigned(state.devices, refreshAll);
    whenAssigned(state.defaultDeviceUID, refreshAll);
    whenAssigned(state.permission, refreshAll);
    whenAssigned(state.callApp, refreshAll);
    whenAssigned(state.tapErrors, refreshAll);
    whenAssigned(state.missingOutput, refreshAll);
    whenAssigned(state.recordings, refreshAll);
    whenAssigned(state.lastRecording, refreshAll);
    whenAssigned(state.launchAtLogin, refreshAll);
    whenAssigned(state.errorMessage, refreshAll);
    whenAssigned(state.settings, refreshAll);
    whenAssigned(controller_.levels().levels(),
        [this] { rows_.forEach([](AppRowModel& row) { row.refreshLevel(); }); });
    observed_.push_back(host_.whenAvailableVersionChanges(refreshAll));
}

void PanelModel::refresh()
{
    rows_.sync();
    updateElapsedTimer();
    Q_EMIT changed();
    Q_EMIT settings_.changed();
}

void PanelModel::updateElapsedTimer()
{
    if (controller_.state().recordings->empty()) {
        elapsedTimer_.reset();
    } else if (!elapsedTimer_) {
        elapsedTimer_ = mainLoop_.every(std::chrono::seconds(1),
            [this] { rows_.forEach([](AppRowModel& row) { row.refreshElapsed(); }); });
    }
}

void PanelModel::setShowsSettings(bool isShown)
{
    if (isShown == showsSettings_)
        return;
    showsSettings_ = isShown;
    Q_EMIT changed();
}

QString PanelModel::page() const
{
    if (showsSettings_)
        return QStringLiteral("settings");
    return *controller_.state().permission == AudioPermission::State::granted ? QStringLiteral("mixer")
                                                                              : QStringLiteral("permission");
}

bool PanelModel::isAccessDenied() const
{
    return *controller_.state().permission == AudioPermission::State::denied;
}

QString PanelModel::bannerKind() const
{
    if (*controller_.state().callApp)
        return QStringLiteral("call");
    return *controller_.state().errorMessage ? QStringLiteral("error") : QString();
}

QString PanelModel::bannerText() const
{
    const auto& state = controller_.state();
    if (const auto& callApp = *state.callApp)
        return callText(*callApp);
    return messageText(state.errorMessage->value_or(""));
}

QString PanelModel::callText(const std::string& bundleID) const
{
    const auto& state = controller_.state();
    const auto app = std::ranges::find(*state.apps, bundleID, &AppEntry::bundleID);
    const auto name = app == state.apps->end() ? QCoreApplication::translate("PanelModel", "A call app")
                                               : QString::fromStdString(app->name);
    const auto level = percentText(static_cast<double>(state.settings->focus.duckLevel));
    //: The name of an app, then a percentage with its sign.
    return QCoreApplication::translate("PanelModel", "%1 is on a call. Other apps lowered to %2")
        .arg(name, level);
}

QString PanelModel::output() const
{
    return systemOutputLabel(controller_.state());
}

QVariantList PanelModel::outputEntries() const
{
    return variantsOf(systemOutputEntries(controller_.state()));
}

QString PanelModel::lastRecording() const
{
    const auto& location = *controller_.state().lastRecording;
    return location ? QString::fromStdString(location->filename().string()) : QString();
}

QString PanelModel::availableVersion() const
{
    return QString::fromStdString(host_.availableVersion().value_or(""));
}

bool PanelModel::isDark() const
{
    const auto theme = controller_.state().settings->appearance.theme;
    return theme == Theme::system ? systemIsDark_ : theme == Theme::dark;
}

bool PanelModel::glass() const
{
    return controller_.state().settings->appearance.glass;
}

bool PanelModel::animations() const
{
    return controller_.state().settings->appearance.animations;
}

bool PanelModel::levelMeters() const
{
    return controller_.state().settings->appearance.levelMeters;
}

void PanelModel::setSystemIsDark(bool isDark)
{
    systemIsDark_ = isDark;
    Q_EMIT changed();
}

void PanelModel::chooseOutput(const QString& key)
{
    const auto& devices = *controller_.state().devices;
    const auto device = std::ranges::find(devices, key.toUInt(), &OutputDevice::id);
    if (device != devices.end())
        controller_.setSystemOutput(OutputDevice(*device));
}

void PanelModel::dismissError()
{
    controller_.dismissErrorMessage();
}

void PanelModel::revealLastRecording()
{
    controller_.revealLastRecording();
}

void PanelModel::requestPermission()
{
    controller_.requestPermission();
}

void PanelModel::openPrivacySettings()
{
    host_.openPrivacySettings();
}

void PanelModel::openDownloadPage()
{
    host_.openDownloadPage();
}

void PanelModel::quit()
{
    host_.quit();
}

}  // namespace fadeloom
