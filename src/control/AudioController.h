// SPDX-License-Identifier: MIT
// The one object that decides: which applications stand in the mixer, which are tapped, where each plays and how.
//
// It is driven from four sides: a timer, the audio system's announcements, changes of the settings, and the user's
// operations. They end in a poll, which compares the world with what is wanted and repairs the difference.
//
// Its sources go by concern: AudioController.cpp (start, end, permission), …Settings.cpp (from settings to sound and
// file), …Poll.cpp (from processes to rows), …Taps.cpp (from rows to taps), …Routing.cpp (devices and outputs),
// …Calls.cpp (ducking), …Recordings.cpp, …Presets.cpp, …Desktop.cpp (start at login, appearance), …Demo.cpp (fixed
// contents for pictures).
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

/// Apps are named by their bundle identifiers. Thread: main; a callback that comes on another one stops the process.
class AudioController {
public:
    static constexpr std::chrono::seconds pollInterval{5};

    /// Loads the settings, begins to listen, polls once. Settings that are there and cannot be read are an error, and
    /// nothing is saved in their place. `version` is for the log; "?" when empty.
    AudioController(const Platform& platform, EngineLog& engineLog, const std::string& version);
    /// One that publishes fixed contents, for pictures: it looks at nothing, taps nothing and saves nothing.
    AudioController(const Platform& platform, EngineLog& engineLog, const DemoContents& demo);
    AudioController(const AudioController&) = delete;
    AudioController& operator=(const AudioController&) = delete;

    /// What is published; it changes only through the operations below and through what happens.
    [[nodiscard]] const ControllerState& state() const { return state_; }

    /// Takes a new record. What differs from the last one is heard at once and saved half a second later.
    void setSettings(SettingsData settings);
    /// Changes a copy of the settings with `change`, and takes that.
    void editSettings(const std::function<void(SettingsData&)>& change);
    /// The same with the settings of one app; one that is left with the defaults has no entry afterwards.
    void editApp(const std::string& bundleID, const std::function<void(AppAudioSettings&)>& change);
    void dismissError() { state_.error.assign(std::nullopt); }

    /// Compares the world with what is wanted, now.
    void poll();
    /// Polls, and tries a tap again that was refused.
    void retryTap(const std::string& bundleID);
    /// Polls in a later turn of the main loop; any number of requests until then cost one poll.
    void schedulePoll();
    /// Asks the user for the permission to capture, then polls.
    void requestPermission();

    /// The devices that the app plays through now: the chosen one when it is connected, else those of its own choice,
    /// else the system's default.
    [[nodiscard]] std::vector<OutputDevice> outputs(const std::string& bundleID) const;
    /// The first of them.
    [[nodiscard]] std::optional<std::string> outputUID(const std::string& bundleID) const;
    /// Whether the app has a chosen output that is not connected.
    [[nodiscard]] bool isOutputMissing(const std::string& bundleID) const;
    /// The app in the mixer that a process belongs to.
    [[nodiscard]] std::optional<std::string> appOfProcess(ProcessID process) const;
    /// Makes the device the system's default output.
    Outcome setSystemOutput(const OutputDevice& device);

    /// The app's parameter block, or null: it comes with the app's first tap and goes with its last process.
    [[nodiscard]] const TapParameters* parametersOf(const std::string& bundleID) const;
    /// The app's tap on the first of its outputs, or null.
    [[nodiscard]] const AppTap* tapOf(const std::string& bundleID) const;
    /// The meters; whoever shows them says when.
    [[nodiscard]] LevelStore& levels() { return levels_; }

    /// Writes what the app plays to a file, before volume, mute and equalizer; a second call while the app is being
    /// recorded does nothing.
    Outcome startRecording(const std::string& bundleID);
    /// The file is complete half a second later, or once the renderer has let go of it.
    void stopRecording(const std::string& bundleID);
    /// Where recordings go.
    [[nodiscard]] std::filesystem::path recordingsFolder() const;
    /// Lets the user choose where they go. `prompt`: on the button that confirms.
    void chooseRecordingsFolder(const std::string& prompt);
    /// Shows the recording that was stopped last in the file manager.
    void revealLastRecording();

    [[nodiscard]] const CallApps& callApps() const { return platform_.callApps; }
    /// Its use of the microphone is a call from now on; is none any more and not offered; as if nothing had been said.
    void addCallApp(const std::string& bundleID);
    void removeCallApp(const std::string& bundleID);
    void resetCallApps();

    void applyPreset(const EQPreset& preset, const std::string& bundleID);
    /// Keeps the app's curve under this name. A blank name does nothing, that of a built-in preset is an error.
    Outcome saveUserPreset(const std::string& name, const std::string& bundleID);
    void deleteUserPreset(const EQPreset& preset);

    /// Afterwards `launchAtLogin` is what the system made of it.
    Outcome setLaunchAtLogin(bool isWanted);

    /// Ends the work before the program does: no tap is left, every recording is a whole file, and a save that waits
    /// is done when this returns.
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
    bool isSaving_ = true;  // Not where the file may hold what could not be read.
    AudioPermission audioPermission_{platform_.capturePermission, platform_.mainLoop};
    AppGrouper grouper_{platform_.workspace};

    ControllerState state_;
    SettingsSaver saver_;
    LevelStore levels_{platform_.mainLoop, [this] { return takePeaks(); }};

    std::map<std::string, TrackedApp> tracked_;  // Apps that have played since they were started.
    Recordings recordings_{platform_.mainLoop, platform_.audio, platform_.audioFiles, engineLog_,
        [this](const std::string& bundleID, AudioFileError error) { recordingBroken(bundleID, error); }};
    bool isPollScheduled_ = false;
    bool isShutDown_ = false;

    // Last, so that they end first: no callback comes into an object that is going.
    std::vector<Subscription> systemListeners_;
    Subscription timer_;
    LifeToken life_;
};

}  // namespace fadeloom
