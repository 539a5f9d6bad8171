// SPDX-License-Identifier: MIT
// Audio files in memory: what was written to each, what was asked of them, and faults on demand.
#pragma once

#include "platform/AudioFiles.h"

#include <cstddef>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace fadeloom {

/// A file as it lies on the simulated disk.
struct SimulatedAudioContent {
    double sampleRate = 0;  // hertz
    std::vector<float> samples;  // Interleaved, as they were handed over.
    bool isComplete = false;  // Closed in good order.

    [[nodiscard]] std::size_t frameCount() const { return samples.size() / 2; }
};

class SimulatedAudioFiles final : public AudioFiles {
public:
    SimulatedAudioFiles();
    SimulatedAudioFiles(const SimulatedAudioFiles&) = delete;
    SimulatedAudioFiles& operator=(const SimulatedAudioFiles&) = delete;
    ~SimulatedAudioFiles() override;

    bool isTaken(const std::filesystem::path& location) const override;
    std::expected<AudioFile*, TapError> create(
        const std::filesystem::path& location, double sampleRate) override;
    std::optional<AudioFileError> dispose(AudioFile& file) override;
    /// "error 28" for 28.
    std::string describe(AudioFileError error) const override;

    /// Every file is refused for this reason; none when it is absent.
    void refuseToCreate(std::optional<TapError> refusal) { refusal_ = std::move(refusal); }
    /// Every open file fails: it keeps nothing any more.
    void failWriting(AudioFileError error);
    /// Every open file's writer is held up: from now on there is no room for samples.
    void setStalled(bool isStalled) { isStalled_ = isStalled; }

    /// Upper and lower case of ASCII letters are the same in names, as on many disks.
    void foldCase() { foldsCase_ = true; }

    /// Has `look` called each time a file is about to be closed.
    void whenDisposed(std::function<void()> look) { whenDisposed_ = std::move(look); }

    /// What was asked, in order: "create NAME", "dispose NAME", with the file's name.
    [[nodiscard]] const std::vector<std::string>& journal() const { return journal_; }
    [[nodiscard]] std::size_t openCount() const { return open_.size(); }
    /// The file of this name on the simulated disk, or null.
    [[nodiscard]] const SimulatedAudioContent* at(const std::filesystem::path& location) const;
    /// Every file on the simulated disk, by name.
    [[nodiscard]] std::vector<std::filesystem::path> locations() const;

private:
    class OpenFile;

    std::list<OpenFile> open_;
    std::map<std::filesystem::path, std::shared_ptr<SimulatedAudioContent>> disk_;
    std::vector<std::string> journal_;
    std::function<void()> whenDisposed_ = [] { };
    std::optional<TapError> refusal_;
    bool isStalled_ = false;
    bool foldsCase_ = false;
};

}  // namespace fadeloom
