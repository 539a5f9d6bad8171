// SPDX-License-Identifier: MIT
// Recordings of the controller: one per app, from the first cycle after the start to a complete file.
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

Outcome AudioController::startRecording(const std::string& bundleID)
{
    if (recordings_.contains(bundleID))
        return {};
    const auto* const tap = tapOf(bundleID);
    if (!tap)
        return failed(NothingToRecord{});

    const auto startedAt = platform_.clock.now();
    const auto location = newRecordingLocation(bundleID, startedAt);
    std::error_code error;
    std::filesystem::create_directories(location.parent_path(), error);
    if (error)
        return failed(RecordingNotStarted{FileError{
            .step = FileError::Step::createFolder, .file = location.parent_path(), .reason = error}});
    const auto started =
        recordings_.start(bundleID, location, tap->sampleRate(), startedAt, tracked_.at(bundleID).parameters);
    if (!started)
        return failed(RecordingNotStarted{started.error()});
    state_.recordings.modify([&](auto& recordings) { recordings.emplace(bundleID, startedAt); });
    return {};
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

// Otherwise the recording would continue with a file that silently misses audio.
void AudioController::recordingBroken(const std::string& bundleID, AudioFileError error)
{
    stopRecording(bundleID);
    state_.error.assign(RecordingNotWritten{nameOf(bundleID), platform_.audioFiles.describe(error)});
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
    // Two apps of one name, one app twice within a second, a clock that was set back: nothing is overwritten.
    auto location = folder / recordingFileName(name, time);
    for (int count = 2; platform_.audioFiles.isTaken(location); ++count)
        location = folder / recordingFileName(name, time, count);
    return location;
}

std::filesystem::path AudioController::recordingsFolder() const
{
    return fadeloom::recordingsFolder(*state_.settings, platform_.folders);
}

void AudioController::chooseRecordingsFolder(const std::string& prompt)
{
    if (!platform_.dialogs)
        return;
    if (platform_.application)
        platform_.application->activate();
    platform_.dialogs->chooseFolder(recordingsFolder(), prompt, life_.whileAlive([this](const auto& folder) {
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
