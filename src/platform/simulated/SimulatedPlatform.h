// SPDX-License-Identifier: MIT
// A complete in-memory platform: applications, audio, time, the user's permission.
//
// The program runs on it unchanged, in tests and with --simulate. Nothing happens by itself:
//
//      SimulatedPlatform world{folder};
//      world.plug({.uid = "speakers", .name = "Speakers"});
//      const auto music = world.launchApp("Music");
//      world.startPlaying(music, SimulatedSignal::constant(0.5F));
//      world.advance(5s);
//      EXPECT_EQ(world.heard("speakers").peak(1), 0.5F);
#pragma once

#include "platform/Platform.h"
#include "platform/simulated/SimulatedApplication.h"
#include "platform/simulated/SimulatedAudioFiles.h"
#include "platform/simulated/SimulatedAudioSystem.h"
#include "platform/simulated/SimulatedAudioWorld.h"
#include "platform/simulated/SimulatedBackgroundQueue.h"
#include "platform/simulated/SimulatedCallApps.h"
#include "platform/simulated/SimulatedCapturePermission.h"
#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedDialogs.h"
#include "platform/simulated/SimulatedFolders.h"
#include "platform/simulated/SimulatedHttpClient.h"
#include "platform/simulated/SimulatedLoginItem.h"
#include "platform/simulated/SimulatedMainLoop.h"
#include "platform/simulated/SimulatedSystemLog.h"
#include "platform/simulated/SimulatedText.h"
#include "platform/simulated/SimulatedUserDefaults.h"
#include "platform/simulated/SimulatedWallClock.h"
#include "platform/simulated/SimulatedWorkspace.h"

#include <chrono>
#include <filesystem>
#include <string>

namespace fadeloom {

/// Initially without devices and applications, with permission. Thread: the one that creates it, as its main thread.
class SimulatedPlatform {
public:
    /// `applicationSupport`: a real folder for the program's files. `text` replaces `SimulatedText`; must outlive this.
    explicit SimulatedPlatform(std::filesystem::path applicationSupport, Text* text = nullptr);
    SimulatedPlatform(const SimulatedPlatform&) = delete;
    SimulatedPlatform& operator=(const SimulatedPlatform&) = delete;

    /// Parts that replace the simulated ones unless null.
    struct Replacements {
        StandardFolders* folders = nullptr;
        SystemLog* systemLog = nullptr;
    };
    /// All parts, for the program.
    [[nodiscard]] Platform platform(const Replacements& instead);
    [[nodiscard]] Platform platform() { return platform({}); }

    /// Advances the clock: timers, background tasks and IO cycles run in order.
    void advance(SimulatedClock::Duration duration) { mainLoop_.advance(duration); }
    /// Runs what is posted to the main loop, without advancing the clock.
    void runPosted() { mainLoop_.runPosted(); }
    [[nodiscard]] std::chrono::system_clock::time_point date() const { return wallClock_.now(); }
    void setDate(std::chrono::system_clock::time_point date) { wallClock_.set(date); }

    // Applications.
    ProcessID launchApp(const std::string& name, const SimulatedAppTraits& traits = {});
    /// Starts a process that is not an application itself: a helper of `owner`, or a daemon if that is below 1.
    ProcessID launchHelper(ProcessID owner, const std::string& bundleID);
    /// Ends a process, its helpers and their audio.
    void quitApp(ProcessID pid);

    // Their audio.
    /// The process opens audio without playing: another audio process with that pid appears.
    AudioProcessID openAudio(ProcessID pid);
    /// Removes all audio processes with that pid.
    void closeAudio(ProcessID pid);
    /// Plays through the pid's first audio process, opening audio if it has none.
    void startPlaying(ProcessID pid, SimulatedSignal signal = SimulatedSignal::constant(0.25F));
    void stopPlaying(ProcessID pid);
    /// Plays on devices that the process has chosen itself, opening audio if it has none; empty for the default output.
    void chooseOutputs(ProcessID pid, std::vector<std::string> uids);
    void setOutOfReach(ProcessID pid, std::optional<OutOfReach> reason);
    void startUsingMic(ProcessID pid);
    void stopUsingMic(ProcessID pid);

    // Devices, by unique id.
    OutputDeviceID plug(const SimulatedDeviceTraits& traits) { return audioWorld_.plug(traits); }
    void unplug(const std::string& uid) { audioWorld_.unplug(uid); }
    void changeRate(const std::string& uid, double rate) { audioWorld_.changeRate(uid, rate); }
    void setDefaultOutput(const std::string& uid) { audioWorld_.setDefaultOutput(uid); }
    /// Runs one IO cycle now.
    void runCycle(std::uint32_t frames) { audioWorld_.runCycle(frames); }
    /// A device's input in the last cycle.
    [[nodiscard]] HeardAudio heard(const std::string& uid) const { return audioWorld_.heard(uid); }

    // The user's permission: `SimulatedCapturePermission::granted`, `denied`, `undecided`, or nullopt.
    void setPermission(std::optional<int> preflight) { permission_.set(preflight); }

    /// Makes an operation of the audio system fail, the next time or always.
    void refuse(AudioOperation operation, HowOften howOften, std::int32_t status = -1)
    {
        audio_.refuse(operation, howOften, status);
    }
    void allow(AudioOperation operation) { audio_.allow(operation); }

    // The parts, for everything without a shortcut here.
    SimulatedAudioSystem& audio() { return audio_; }
    SimulatedAudioWorld& audioWorld() { return audioWorld_; }
    SimulatedAudioFiles& audioFiles() { return audioFiles_; }
    SimulatedWorkspace& workspace() { return workspace_; }
    SimulatedCapturePermission& capturePermission() { return permission_; }
    SimulatedLoginItem& loginItem() { return loginItem_; }
    SimulatedApplication& application() { return application_; }
    SimulatedDialogs& dialogs() { return dialogs_; }
    SimulatedHttpClient& http() { return http_; }
    SimulatedCallApps& callApps() { return callApps_; }
    SimulatedUserDefaults& userDefaults() { return userDefaults_; }
    SimulatedMainLoop& mainLoop() { return mainLoop_; }
    SimulatedBackgroundQueue& utilityQueue() { return utilityQueue_; }
    SimulatedBackgroundQueue& logQueue() { return logQueue_; }
    SimulatedSystemLog& systemLog() { return systemLog_; }

private:
    [[nodiscard]] std::string bundleIDOf(ProcessID pid) const;
    AudioProcessID audioOf(ProcessID pid);

    SimulatedClock clock_;
    SimulatedWallClock wallClock_{clock_};
    SimulatedMainLoop mainLoop_{clock_};
    SimulatedBackgroundQueue utilityQueue_{clock_};
    SimulatedBackgroundQueue logQueue_{clock_};
    SimulatedAudioWorld audioWorld_{clock_, mainLoop_};
    SimulatedAudioSystem audio_{audioWorld_};
    SimulatedAudioFiles audioFiles_;
    SimulatedWorkspace workspace_;
    SimulatedCapturePermission permission_;
    SimulatedLoginItem loginItem_;
    SimulatedApplication application_;
    SimulatedDialogs dialogs_;
    SimulatedHttpClient http_{mainLoop_};
    SimulatedCallApps callApps_;
    SimulatedUserDefaults userDefaults_;
    SimulatedSystemLog systemLog_;
    SimulatedFolders folders_;
    SimulatedText simpleText_;
    Text& text_;
    std::map<ProcessID, std::string> helperBundleIDs_;
};

}  // namespace fadeloom
