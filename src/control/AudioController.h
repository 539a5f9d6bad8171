// SPDX-License-Identifier: MIT
// The object that makes all decisions: which applications are in the mixer, which are tapped, where and how each plays.
//
// It is driven by a timer, the audio system's notifications, changes of the settings, and the user's operations. All of
// them lead to a poll, which compares the actual state with the wanted one and reconciles the difference.
//
// Its sources are split by concern: AudioController.cpp (start, shutdown, permission), …Settings.cpp (from settings to
// audio and file), …Poll.cpp (from processes to rows), …Taps.cpp (from rows to taps), …Routing.cpp (devices and
// outputs), …Calls.cpp (ducking), …Recordings.cpp, …Presets.cpp, …Desktop.cpp (start at login, appearance), …Demo.cpp
// (fixed contents for pictures).
#pragma once

#include "base/LifeToken.h"
#include "control/AppGroups.h"
#include "control/AudioPermission.h"
#include "control/ControllerState.h"
#include "control/DemoContents.h"
#include "control/LevelStore.h"
#include "control/Recordings.h"
#include "control/SettingsSaver.h"
#include "control/TrackedApp.h"
#include "log/EngineLog.h"
#include "platform/Platform.h"
#include "settings/SettingsFile.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace fadeloom {

/// Apps are identified by bundle identifier. Thread: main; a callback on another one aborts the process.
class AudioController {
public:
    static constexpr std::chrono::seconds pollInterval{5};

    /// Loads the settings, starts listening, polls once. Existing settings that cannot be read are an error, and are
    /// never overwritten. `version` is for the log; "?" if empty.
    AudioController(const Platform& platform, EngineLog& engineLog, const std::string& version);
    /// A controller that publishes fixed contents, for pictures: it queries nothing, taps nothing and saves nothing.
    AudioController(const Platform& platform, EngineLog& engineLog, const DemoContents& demo);
    AudioController(const AudioController&) = delete;
    AudioController& operator=(const AudioController&) = delete;

    /// The published state; it changes only through the operations below and external events.
    [[nodiscard]] const ControllerState& state() const { return state_; }

    /// Replaces the settings. Changes take effect immediately and are saved half a second later.
    void setSettings(SettingsData settings);
    /// Applies `change` to a copy of the settings, and sets that.
    void editSettings(const std::function<void(SettingsData&)>& change);
    /// The same for the settings of one app; its entry is removed if they equal the defaults afterwards.
    void editApp(const std::string& bundleID, const std::function<void(AppAudioSettings&)>& change);
    void dismissError() { state_.error.assign(std::nullopt); }

    /// Compares the actual state with the wanted one, now.
    void poll();
    /// Polls, and retries a refused tap.
    void retryTap(const std::string& bundleID);
    /// Polls in a later iteration of the main loop; any number of requests until then cost one poll.
    void schedulePoll();
    /// Requests the permission to capture from the user, then polls.
    void requestPermission();

    /// The devices that the app currently plays through: the selected one if it is connected, else those that it has
    /// chosen itself, else the system's default.
    [[nodiscard]] std::vector<OutputDevice> outputs(const std::string& bundleID) const;
    /// The first of them.
    [[nodiscard]] std::optional<std::string> outputUID(const std::string& bundleID) const;
    /// Whether the app has a selected output that is not connected.
    [[nodiscard]] bool isOutputMissing(const std::string& bundleID) const;
    /// The app in the mixer that a process belongs to.
    [[nodiscard]] std::optional<std::string> appOfProcess(ProcessID process) const;
    /// Makes the device the system's default output.
    Outcome setSystemOutput(const OutputDevice& device);

    /// The app's parameter block, or null: it is created with the app's first tap and destroyed with its last process.
    [[nodiscard]] const TapParameters* parametersOf(const std::string& bundleID) const;
    /// The app's tap on the first of its outputs, or null.
    [[nodiscard]] const AppTap* tapOf(const std::string& bundleID) const;
    /// The meters; their viewers say when they are needed.
    [[nodiscard]] LevelStore& levels() { return levels_; }

    /// Records the app to a file, before volume, mute and equalizer; does nothing while the app is already being
    /// recorded.
    Outcome startRecording(const std::string& bundleID);
    /// The file is complete half a second later, or once the renderer has released it.
    void stopRecording(const std::string& bundleID);
    /// The recordings folder.
    [[nodiscard]] std::filesystem::path recordingsFolder() const;
    /// Prompts the user for the recordings folder. `prompt`: the label of the confirmation button.
    void chooseRecordingsFolder(const std::string& prompt);
    /// Shows the last recording in the file manager.
    void revealLastRecording();

    [[nodiscard]] const CallApps& callApps() const { return platform_.callApps; }
    /// From now on its use of the microphone is a call; is not one and is not suggested; is undecided again.
    void addCallApp(const std::string& bundleID);
    void removeCallApp(const std::string& bundleID);
    void resetCallApps();

    void applyPreset(const EQPreset& preset, const std::string& bundleID);
    /// Saves the app's curve under this name. A blank name does nothing, that of a built-in preset is an error.
    Outcome saveUserPreset(const std::string& name, const std::string& bundleID);
    void deleteUserPreset(const EQPreset& preset);

    /// Afterwards `launchAtLogin` is the system's actual state.
    Outcome setLaunchAtLogin(bool isWanted);

    /// Shuts down before the program ends: removes all taps, completes all recordings and a pending save before it
    /// returns.
    void shutdown();

private:
    AudioController(const Platform& platform, EngineLog& engineLog, const std::string& version,
        SettingsFile::Loaded loaded);

    std::unexpected<ControllerError> failed(ControllerError error);
    [[nodiscard]] std::function<void()> onMainThread(void (AudioController::*action)());
    void listenToSystem();

    void settingsChanged(const SettingsData& old);
    void appSettingsChanged(const std::string& bundleID, const SettingsData& old);
    void lowerVolumesToLimit();
    void pushSettings(const std::string& bundleID, std::optional<double> sampleRate = std::nullopt);
    void pushAllSettings();
    void holdNewStreams();

    void updateFocus();
    [[nodiscard]] std::vector<std::string> callIDsOf(const std::string& bundleID) const;

    void updatePermission();
    void trackPlayingApps(const AppGroups& groups);
    void updateApps(const AppGroups& groups);
    [[nodiscard]] AppEntry makeEntry(const std::string& bundleID, const AppGroup& group) const;
    void findIcon(const std::string& bundleID, const AppGroup& group);
    void rememberNames(const std::vector<AppEntry>& entries);
    void forgetQuitApps(const AppGroups& groups);
    void confirmAudio();

    void ensureTaps();
    void ensureTap(const AppEntry& entry);
    [[nodiscard]] bool adaptTap(
        AppTap& tap, const AppEntry& entry, const OutputDevice& device, TapScope scope);
    void createTap(TrackedApp& app, const AppEntry& entry, const OutputDevice& device, TapScope scope,
        double formerRate);
    void tapFailed(TrackedApp& app, const AppEntry& entry, const OutputDevice& device, const TapError& error);
    void tapMade(TrackedApp& app, const AppEntry& entry, const AppTap& tap, double formerRate);
    [[nodiscard]] FailedTap attemptOf(const AppEntry& entry, const OutputDevice& device) const;

    [[nodiscard]] std::map<std::string, float> takePeaks();

    [[nodiscard]] std::string nameOf(const std::string& bundleID) const;
    [[nodiscard]] std::filesystem::path newRecordingLocation(
        const std::string& bundleID, Recording::Moment startedAt) const;
    void stopAllRecordings();
    void recordingBroken(const std::string& bundleID, AudioFileError error);

    void applyAppearance();

    void devicesChanged();
    void refreshDevices();
    void updateMissingOutput();

    Platform platform_;
    EngineLog& engineLog_;
    bool isDemo_ = false;
    bool isSaving_ = true;  // False if the file may contain settings that could not be read.
    AudioPermission audioPermission_{platform_.capturePermission, platform_.mainLoop};
    AppGrouper grouper_{platform_.workspace};

    ControllerState state_;
    SettingsSaver saver_;
    LevelStore levels_{platform_.mainLoop, [this] { return takePeaks(); }};

    std::map<std::string, TrackedApp> tracked_;  // Apps that have played in their current lifetime.
    Recordings recordings_{platform_.mainLoop, platform_.audio, platform_.audioFiles, engineLog_,
        [this](const std::string& bundleID, AudioFileError error) { recordingBroken(bundleID, error); }};
    bool isPollScheduled_ = false;
    bool isShutDown_ = false;

    // Last, so that they end first: no callback reaches a partly destroyed object.
    std::vector<Subscription> systemListeners_;
    Subscription timer_;
    LifeToken life_;
};

}  // namespace fadeloom
