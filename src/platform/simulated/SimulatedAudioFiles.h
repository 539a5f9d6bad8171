// SPDX-License-Identifier: MIT
// Audio files in memory: their contents, a journal of calls, and fault injection.
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

/// A file on the simulated disk.
struct SimulatedAudioContent {
    double sampleRate = 0;  // Hertz.
    std::vector<float> samples;  // Interleaved, as written.
    bool isComplete = false;  // Closed properly.

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

    /// All creations fail with this error; none if nullopt.
    void refuseToCreate(std::optional<TapError> refusal) { refusal_ = std::move(refusal); }
    /// All open files fail: they no longer store anything.
    void failWriting(AudioFileError error);
    /// All open files stall: they no longer accept samples.
    void setStalled(bool isStalled) { isStalled_ = isStalled; }

    /// Makes file names case-insensitive for ASCII letters, as on many disks.
    void foldCase() { foldsCase_ = true; }

    /// Calls `disposed` each time a file is about to be closed.
    void whenDisposed(std::function<void()> disposed) { whenDisposed_ = std::move(disposed); }

    /// The calls so far: "create NAME", "dispose NAME", with the file's name.
    [[nodiscard]] const std::vector<std::string>& journal() const { return journal_; }
    [[nodiscard]] std::size_t openCount() const { return open_.size(); }
    /// The file with this name on the simulated disk, or null.
    [[nodiscard]] const SimulatedAudioContent* at(const std::filesystem::path& location) const;
    /// All files on the simulated disk, by name.
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
