// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedPlatform.h"

namespace fadeloom {

SimulatedPlatform::SimulatedPlatform(std::filesystem::path applicationSupport, Text* text)
    : folders_(std::move(applicationSupport))
    , text_(text == nullptr ? simpleText_ : *text)
{
}

Platform SimulatedPlatform::platform(const Replacements& instead)
{
    return {
        .audio = audio_,
        .audioFiles = audioFiles_,
        .workspace = workspace_,
        .capturePermission = permission_,
        .loginItem = loginItem_,
        .mainLoop = mainLoop_,
        .utilityQueue = utilityQueue_,
        .logQueue = logQueue_,
        .folders = instead.folders == nullptr ? folders_ : *instead.folders,
        .systemLog = instead.systemLog == nullptr ? systemLog_ : *instead.systemLog,
        .text = text_,
        .clock = wallClock_,
        .userDefaults = userDefaults_,
        .http = http_,
        .callApps = callApps_,
        .application = &application_,
        .dialogs = &dialogs_,
    };
}

ProcessID SimulatedPlatform::launchApp(const std::string& name, const SimulatedAppTraits& traits)
{
    return workspace_.launchApp(name, traits);
}

ProcessID SimulatedPlatform::launchHelper(ProcessID owner, const std::string& bundleID)
{
    const ProcessID pid = workspace_.launchHelper(owner);
    helperBundleIDs_[pid] = bundleID;
    return pid;
}

void SimulatedPlatform::quitApp(ProcessID pid)
{
    for (const ProcessID ended : workspace_.quit(pid)) {
        closeAudio(ended);
        helperBundleIDs_.erase(ended);
    }
}

std::string SimulatedPlatform::bundleIDOf(ProcessID pid) const
{
    if (const auto application = workspace_.runningApplication(pid))
        return application->bundleID.value_or("");
    const auto helper = helperBundleIDs_.find(pid);
    return helper == helperBundleIDs_.end() ? "" : helper->second;
}

AudioProcessID SimulatedPlatform::openAudio(ProcessID pid)
{
    return audioWorld_.openAudio(pid, bundleIDOf(pid));
}

AudioProcessID SimulatedPlatform::audioOf(ProcessID pid)
{
    const AudioProcessID open = audioWorld_.audioProcessOf(pid);
    return open == 0 ? openAudio(pid) : open;
}

void SimulatedPlatform::closeAudio(ProcessID pid)
{
    for (auto object = audioWorld_.audioProcessOf(pid); object != 0; object = audioWorld_.audioProcessOf(pid))
        audioWorld_.closeAudio(object);
}

void SimulatedPlatform::startPlaying(ProcessID pid, SimulatedSignal signal)
{
    audioWorld_.startPlaying(audioOf(pid), std::move(signal));
}

void SimulatedPlatform::stopPlaying(ProcessID pid)
{
    audioWorld_.stopPlaying(audioWorld_.audioProcessOf(pid));
}

void SimulatedPlatform::chooseOutputs(ProcessID pid, std::vector<std::string> uids)
{
    audioWorld_.chooseOutputs(audioOf(pid), std::move(uids));
}

void SimulatedPlatform::setOutOfReach(ProcessID pid, std::optional<OutOfReach> reason)
{
    audioWorld_.setOutOfReach(audioOf(pid), reason);
}

void SimulatedPlatform::startUsingMic(ProcessID pid)
{
    audioWorld_.setUsingMic(audioOf(pid), UsesMic::yes);
}

void SimulatedPlatform::stopUsingMic(ProcessID pid)
{
    audioWorld_.setUsingMic(audioWorld_.audioProcessOf(pid), UsesMic::no);
}

}  // namespace fadeloom
