// SPDX-License-Identifier: MIT
#include "control/Recordings.h"

#include <chrono>
#include <utility>

namespace fadeloom {

Recordings::Recordings(
    MainLoop& mainLoop, const AudioSystem& audio, AudioFiles& files, EngineLog& log, WhenBroken whenBroken)
    : mainLoop_(mainLoop)
    , audio_(audio)
    , files_(files)
    , log_(log)
    , whenBroken_(std::move(whenBroken))
{
}

std::vector<std::string> Recordings::bundleIDs() const
{
    std::vector<std::string> ids;
    for (const auto& [id, active] : active_)
        ids.push_back(id);
    return ids;
}

std::expected<void, TapError> Recordings::start(const std::string& bundleID,
    const std::filesystem::path& location, double sampleRate, Recording::Moment date,
    std::shared_ptr<TapParameters> parameters)
{
    auto recording =
        Recording::create(files_, clocks_, location, sampleRate, {.date = date, .host = audio_.hostTime()});
    if (!recording)
        return std::unexpected(std::move(recording.error()));
    parameters->recorder.set((*recording)->lanes());
    active_.emplace(bundleID, Active{std::move(*recording), std::move(parameters)});
    if (!timer_) {
        timer_ = mainLoop_.every(Recording::interval, [this] {
            mainLoop_.requireCurrent();
            advance();
        });
    }
    return {};
}

std::filesystem::path Recordings::stop(const std::string& bundleID)
{
    auto [recording, parameters] = std::move(active_.extract(bundleID).mapped());
    if (active_.empty())
        timer_.reset();
    const auto location = recording->location();
    recording->stop(audio_.hostTime());
    parameters->recorder.set(nullptr);
    closing_.add(bundleID, std::move(recording), std::move(parameters));
    return location;
}

void Recordings::stopAll()
{
    for (const auto& id : bundleIDs())
        stop(id);
}

void Recordings::advance()
{
    const auto now = audio_.hostTime();
    std::map<std::string, AudioFileError> broken;
    for (const auto& [id, active] : active_) {
        active.recording->writeUntil(now);
        if (const auto failure = active.recording->failure())
            broken.emplace(id, *failure);
    }
    for (const auto& [id, error] : broken)
        whenBroken_(id, error);
}

void Recordings::finish(const std::string& bundleID, Recording& recording)
{
    recording.finish();
    if (const auto lost = recording.lostTime(); lost > std::chrono::milliseconds{0})
        log_.error("recording has gaps: " + bundleID + ", " + std::to_string(lost.count()) + " ms lost");
    if (const auto failure = recording.failure())
        log_.error("recording failed: " + bundleID + ": " + files_.describe(*failure));
}

}  // namespace fadeloom
