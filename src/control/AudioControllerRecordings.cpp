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

Outcome AudioController::startRecording(const std::string& bundleID)
{
    if (active_.contains(bundleID))
        return {};
    const auto* const tap = tapOf(bundleID);
    const auto block = params_.find(bundleID);
    if (!tap || block == params_.end())
        return failed(NothingToRecord{});

    const auto startedAt = platform_.clock.now();
    const auto location = newRecordingLocation(bundleID, startedAt);
    std::error_code error;
    std::filesystem::create_directories(location.parent_path(), error);
    if (error)
        return failed(RecordingNotStarted{FileError{
            .step = FileError::Step::createFolder, .file = location.parent_path(), .reason = error}});
    auto recording = Recording::create(platform_.audioFiles, location, tap->sampleRate(), startedAt);
    if (!recording)
        return failed(RecordingNotStarted{recording.error()});

    auto& file = (*recording)->file();
    active_.emplace(bundleID, std::move(*recording));
    block->second->recorder.set(&file);
    if (!recordingCheck_)
        recordingCheck_ =
            platform_.mainLoop.every(recordingCheckInterval, onMainThread(&AudioController::checkRecordings));
    state_.recordings.modify([&](auto& recordings) { recordings.emplace(bundleID, startedAt); });
    return {};
}

void AudioController::stopRecording(const std::string& bundleID)
{
    const auto found = active_.find(bundleID);
    if (found == active_.end())
        return;
    auto recording = std::move(found->second);
    active_.erase(found);
    if (active_.empty())
        recordingCheck_.reset();
    const auto location = recording->location();
    closing_.add(bundleID, std::move(recording), takeRecorderFrom(bundleID));
    state_.recordings.modify([&](auto& recordings) { recordings.erase(bundleID); });
    state_.lastRecording.assign(location);
}

std::shared_ptr<const TapParameters> AudioController::takeRecorderFrom(const std::string& bundleID)
{
    const auto block = params_.find(bundleID);
    if (block == params_.end())
        return nullptr;
    block->second->recorder.set(nullptr);
    return block->second;
}

void AudioController::stopAllRecordings()
{
    std::vector<std::string> ids;
    for (const auto& [id, recording] : active_)
        ids.push_back(id);
    for (const auto& id : ids)
        stopRecording(id);
}

// A recording that takes nothing any more would go on as a file of silence that nobody notices.
void AudioController::checkRecordings()
{
    std::map<std::string, AudioStatus> broken;
    for (const auto& [id, recording] : active_) {
        if (const auto status = recording->health().status; status != kAudioHardwareNoError)
            broken.emplace(id, status);
    }
    for (const auto& [id, status] : broken) {
        stopRecording(id);
        state_.error.assign(RecordingNotWritten{nameOf(id), platform_.audioFiles.describe(status)});
    }
}

void AudioController::finish(const std::string& bundleID, Recording& recording)
{
    recording.finish();
    const auto health = recording.health();
    if (health.droppedWrites > 0)
        engineLog_.error("recording has gaps: " + bundleID + ", " + std::to_string(health.droppedWrites)
            + " cycle(s) lost");
    if (health.status != kAudioHardwareNoError)
        engineLog_.error(
            "recording failed: " + bundleID + ": " + platform_.audioFiles.describe(health.status));
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
