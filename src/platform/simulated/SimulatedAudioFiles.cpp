// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedAudioFiles.h"

#include "platform/WaveFormats.h"

#include <algorithm>
#include <cctype>
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

    AudioStatus setClientFormat(const AudioStreamBasicDescription& format) override
    {
        files_.journal_.push_back("format " + name_);
        if (!isSameFormat(format, waveClientFormat(content_->format.sampleRate)))
            return kExtAudioFileError_InvalidDataFormat;
        return files_.clientFormatStatus_;
    }
    // In memory there is no disk to wait for: what is handed over is there at once.
    AudioStatus write(std::uint32_t frameCount, const float* samples) noexcept override
    {
        if (samples == nullptr)
            files_.journal_.push_back("prime " + name_);
        else if (status_ == kAudioHardwareNoError && files_.isStalled_)
            return kExtAudioFileError_AsyncWriteBufferOverflow;
        else if (status_ == kAudioHardwareNoError)
            content_->samples.insert(content_->samples.end(), samples, samples + 2 * std::size_t{frameCount});
        return status_;
    }
    AudioStatus status() const override { return status_; }

    void fail(AudioStatus status) { status_ = status; }
    void complete()
    {
        files_.journal_.push_back("dispose " + name_);
        content_->isComplete = true;
    }

private:
    SimulatedAudioFiles& files_;
    const std::string name_;
    const std::shared_ptr<SimulatedAudioContent> content_;
    AudioStatus status_ = kAudioHardwareNoError;
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

AudioResult<AudioFile*> SimulatedAudioFiles::create(
    const std::filesystem::path& location, const AudioStreamBasicDescription& fileFormat)
{
    const auto name = location.filename().string();
    journal_.push_back("create " + name);
    if (!(fileFormat.sampleRate > 0) || !isSameFormat(fileFormat, waveFileFormat(fileFormat.sampleRate)))
        return std::unexpected(kAudioFileUnsupportedDataFormatError);
    if (createStatus_ != kAudioHardwareNoError)
        return std::unexpected(createStatus_);
    auto& content = disk_[location];
    content = std::make_shared<SimulatedAudioContent>();  // Whoever still writes to an older one keeps it.
    content->format = fileFormat;
    return &open_.emplace_back(*this, name, content);
}

AudioStatus SimulatedAudioFiles::dispose(AudioFile& file)
{
    const auto open = std::ranges::find(open_, &file, [](OpenFile& each) -> AudioFile* { return &each; });
    if (open == open_.end())
        return kAudioHardwareBadObjectError;
    whenDisposed_();
    open->complete();
    open_.erase(open);
    return kAudioHardwareNoError;
}

std::string SimulatedAudioFiles::describe(AudioStatus status) const
{
    return "error " + std::to_string(status);
}

void SimulatedAudioFiles::failWriting(AudioStatus status)
{
    for (auto& file : open_)
        file.fail(status);
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
