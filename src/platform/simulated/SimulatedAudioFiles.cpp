// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedAudioFiles.h"

#include <algorithm>
#include <cassert>
#include <cctype>
#include <cerrno>
#include <utility>

namespace fadeloom {

class SimulatedAudioFiles::OpenFile final : public AudioFile {
public:
    OpenFile(SimulatedAudioFiles& files, std::string name, std::shared_ptr<SimulatedAudioContent> content)
        : files_(files)
        , name_(std::move(name))
        , content_(std::move(content))
    {
    }

    // In memory, writes complete immediately.
    bool write(std::span<const float> samples) noexcept override
    {
        if (failure_)
            return true;
        if (files_.isStalled_)
            return false;
        content_->samples.insert(content_->samples.end(), samples.begin(), samples.end());
        return true;
    }
    std::optional<AudioFileError> failure() const override { return failure_; }

    void fail(AudioFileError error) { failure_ = error; }
    void complete()
    {
        files_.journal_.push_back("dispose " + name_);
        content_->isComplete = true;
    }

private:
    SimulatedAudioFiles& files_;
    const std::string name_;
    const std::shared_ptr<SimulatedAudioContent> content_;
    std::optional<AudioFileError> failure_;
};

SimulatedAudioFiles::SimulatedAudioFiles() = default;
SimulatedAudioFiles::~SimulatedAudioFiles() = default;

bool SimulatedAudioFiles::isTaken(const std::filesystem::path& location) const
{
    const auto folded = [this](const std::filesystem::path& name) {
        auto text = name.string();
        if (foldsCase_)
            std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::tolower(c); });
        return text;
    };
    return std::ranges::any_of(
        disk_, [&](const auto& file) { return folded(file.first) == folded(location); });
}

std::expected<AudioFile*, TapError> SimulatedAudioFiles::create(
    const std::filesystem::path& location, double sampleRate)
{
    const auto name = location.filename().string();
    journal_.push_back("create " + name);
    if (refusal_)
        return std::unexpected(*refusal_);
    if (!(sampleRate > 0))
        return std::unexpected(TapError{"Create recording file", EINVAL});
    auto& content = disk_[location];
    // An open handle to a previous file keeps its content.
    content = std::make_shared<SimulatedAudioContent>();
    content->sampleRate = sampleRate;
    return &open_.emplace_back(*this, name, content);
}

std::optional<AudioFileError> SimulatedAudioFiles::dispose(AudioFile& file)
{
    const auto open = std::ranges::find(open_, &file, [](OpenFile& each) -> AudioFile* { return &each; });
    assert(open != open_.end());
    whenDisposed_();
    open->complete();
    const auto failure = open->failure();
    open_.erase(open);
    return failure;
}

std::string SimulatedAudioFiles::describe(AudioFileError error) const
{
    return "error " + std::to_string(error.code);
}

void SimulatedAudioFiles::failWriting(AudioFileError error)
{
    for (auto& file : open_)
        file.fail(error);
}

const SimulatedAudioContent* SimulatedAudioFiles::at(const std::filesystem::path& location) const
{
    const auto found = disk_.find(location);
    return found == disk_.end() ? nullptr : found->second.get();
}

std::vector<std::filesystem::path> SimulatedAudioFiles::locations() const
{
    std::vector<std::filesystem::path> result;
    for (const auto& [location, content] : disk_)
        result.push_back(location);
    return result;
}

}  // namespace fadeloom
