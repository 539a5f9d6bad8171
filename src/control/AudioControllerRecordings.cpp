// SPDX-License-Identifier: MIT
// The controller's recordings: each app's own, from the first cycle after the start to a whole file.
#include "control/AudioController.h"
#include "control/RecordingFile.h"
#include "platform/Application.h"
#include "platform/Dialogs.h"
#include "platform/WallClock.h"
#include "platform/Workspace.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace fadeloom {

void AudioController::startRecording(const std::string& bundleID)
{
    if (recordings_.contains(bundleID))
        return;
    const auto* const tap = tapOf(bundleID);
    const auto block = params_.find(bundleID);
    if (!tap || block == params_.end()) {
        state_.errorMessage.assign("Start playback in this app first, then press record.");
        return;
    }
    const auto fail = [this](const std::string& reason) {
        state_.errorMessage.assign("Could not start recording: " + reason);
    };

    const auto startedAt = platform_.clock.now();
    const auto location = newRecordingLocation(bundleID, startedAt);
    std::error_code error;
    std::filesystem::create_directories(location.parent_path(), error);
    if (error)
        return fail(location.parent_path().string() + ": " + error.message());
    const auto started = recordings_.start(bundleID, location, tap->sampleRate(), startedAt, block->second);
    if (!started)
        return fail(started.error().description());
    state_.recordings.modify([&](auto& recordings) { recordings.emplace(bundleID, startedAt); });
}

void AudioController::stopRecording(const std::string& bundleID)
{
    if (!recordings_.contains(bundleID))
        return;
    const auto location = recordings_.stop(bundleID);
    state_.recordings.modify([&](auto& recordings) { recordings.erase(bundleID); });
    state_.lastRecording.assign(location);
}

void AudioController::stopAllRecordings()
{
    for (const auto& id : recordings_.bundleIDs())
        stopRecording(id);
}

// A recording that takes nothing any more would go on as a file that nobody notices to be too short.
void AudioController::recordingBroken(const std::string& bundleID, AudioStatus status)
{
    stopRecording(bundleID);
    state_.errorMessage.assign("Recording of " + nameOf(bundleID)
        + " stopped: the file could not be written (" + platform_.audioFiles.describe(status) + ").");
}

std::string AudioController::nameOf(const std::string& bundleID) const
{
    const auto entry = std::ranges::find(*state_.apps, bundleID, &AppEntry::bundleID);
    return entry == state_.apps->end() ? bundleID : entry->name;
}

std::filesystem::path AudioController::newRecordingLocation(
    const std::string& bundleID, Recording::Moment startedAt) const
{
    const auto folder = recordingsFolder();
    const auto name = nameOf(bundleID);
    const auto time = platform_.clock.localTime(startedAt);
    // Two apps of one name, one app twice within a second, a clock that was set back: nothing is replaced.
    auto location = folder / recordingFileName(name, time);
    for (int count = 2; platform_.audioFiles.isTaken(location); ++count)
        location = folder / recordingFileName(name, time, count);
    return location;
}

std::filesystem::path AudioController::recordingsFolder() const
{
    return fadeloom::recordingsFolder(*state_.settings, platform_.folders);
}

void AudioController::chooseRecordingsFolder()
{
    if (!platform_.dialogs)
        return;
    if (platform_.application)
        platform_.application->activate();
    platform_.dialogs->chooseFolder(
        recordingsFolder(), "Choose", life_.whileAlive([this](const auto& folder) {
            platform_.mainLoop.requireCurrent();
            if (folder)
                editSettings([&](SettingsData& settings) { settings.recordingsFolder = folder->string(); });
        }));
}

void AudioController::revealLastRecording()
{
    if (const auto& location = *state_.lastRecording)
        platform_.workspace.reveal(*location);
}

}  // namespace fadeloom
