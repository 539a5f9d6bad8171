// SPDX-License-Identifier: MIT
// The controller's start, requests and shutdown.
#include "control/AudioController.h"

#include "platform/AudioSystem.h"
#include "platform/LoginItem.h"
#include "platform/MainLoop.h"

#include <utility>

namespace fadeloom {
namespace {

std::optional<ControllerError> unreadSettings(const std::optional<SettingsFileError>& reason)
{
    if (!reason)
        return std::nullopt;
    return SettingsNotRead{*reason};
}

}  // namespace

AudioController::AudioController(const Platform& platform, EngineLog& engineLog, const std::string& version)
    : AudioController(platform, engineLog, version,
          SettingsFile::load(SettingsFile::defaultURL(platform.folders), platform.systemLog,
              defaultCallApps(platform.callApps)))
{
}

AudioController::AudioController(
    const Platform& platform, EngineLog& engineLog, const std::string& version, SettingsFile::Loaded loaded)
    : platform_(platform)
    , engineLog_(engineLog)
    , isSaving_(!loaded.unreadable)
    , state_{.permission = audioPermission_.current(),
          .launchAtLogin = platform.loginItem.status() == LoginItem::Status::enabled,
          .error = unreadSettings(loaded.unreadable),
          .settings = std::move(loaded.settings)}
    , saver_(platform.utilityQueue, platform.mainLoop, SettingsFile::defaultURL(platform.folders),
          [this](const SettingsFileError& reason) { state_.error.assign(SettingsNotSaved{reason}); })
{
    applyAppearance();
    refreshDevices();
    engineLog_.notice("started " + (version.empty() ? "?" : version)
        + ", permission: " + std::string(AudioPermission::name(*state_.permission))
        + ", output: " + state_.defaultDeviceUID->value_or("none"));
    listenToSystem();
    poll();
    timer_ = platform_.mainLoop.every(pollInterval, onMainThread(&AudioController::poll));
}

std::unexpected<ControllerError> AudioController::failed(ControllerError error)
{
    state_.error.assign(error);
    return std::unexpected(std::move(error));
}

std::function<void()> AudioController::onMainThread(void (AudioController::*action)())
{
    return [this, action] {
        platform_.mainLoop.requireCurrent();
        (this->*action)();
    };
}

void AudioController::listenToSystem()
{
    auto& audio = platform_.audio;
    systemListeners_.push_back(audio.whenOutputDevicesChange(onMainThread(&AudioController::devicesChanged)));
    systemListeners_.push_back(
        audio.whenDefaultOutputChanges(onMainThread(&AudioController::devicesChanged)));
    systemListeners_.push_back(audio.whenProcessesChange(onMainThread(&AudioController::schedulePoll)));
}

void AudioController::schedulePoll()
{
    if (isPollScheduled_)
        return;
    isPollScheduled_ = true;
    platform_.mainLoop.post(life_.whileAlive([this] {
        platform_.mainLoop.requireCurrent();
        isPollScheduled_ = false;
        poll();
    }));
}

void AudioController::requestPermission()
{
    if (!audioPermission_.canRequest()) {
        poll();
        return;
    }
    audioPermission_.requestAccess(life_.whileAlive([this](bool) {
        platform_.mainLoop.requireCurrent();
        poll();
    }));
}

void AudioController::shutdown()
{
    isShutDown_ = true;
    timer_.reset();
    // A later poll would create the taps again.
    systemListeners_.clear();
    life_.end();

    recordings_.stopAll();
    for (auto& [id, app] : tracked_)
        app.taps.clear();
    recordings_.closeNow();
    saver_.finish();
}

}  // namespace fadeloom
