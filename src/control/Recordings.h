// SPDX-License-Identifier: MIT
// The active recordings, and those whose files are being closed.
#pragma once

#include "base/Subscription.h"
#include "control/ClosingRecordings.h"
#include "engine/Recording.h"
#include "engine/TapParameters.h"
#include "log/EngineLog.h"
#include "platform/AudioSystem.h"

#include <expected>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace fadeloom {

/// At most one recording per app, by bundle identifier. Thread: main.
class Recordings {
public:
    /// Called when a file accepts nothing more; the recording is still active.
    using WhenBroken = std::function<void(const std::string& bundleID, AudioFileError error)>;

    /// The arguments must outlive this.
    Recordings(MainLoop& mainLoop, const AudioSystem& audio, AudioFiles& files, EngineLog& log,
        WhenBroken whenBroken);
    Recordings(const Recordings&) = delete;
    Recordings& operator=(const Recordings&) = delete;

    [[nodiscard]] bool contains(const std::string& bundleID) const { return active_.contains(bundleID); }
    [[nodiscard]] std::vector<std::string> bundleIDs() const;

    /// Records what the renderers of `parameters` capture at `sampleRate` hertz.
    [[nodiscard]] std::expected<void, TapError> start(const std::string& bundleID,
        const std::filesystem::path& location, double sampleRate, Recording::Moment date,
        std::shared_ptr<TapParameters> parameters);
    /// Ends an app's recording, whose file is closed a little later; returns the file.
    std::filesystem::path stop(const std::string& bundleID);
    /// Ends all of them without closing a file: renderers may still be writing.
    void stopAll();
    /// Closes the files of stopped recordings that no renderer can reach.
    void closeNow() { closing_.closeNow(); }

private:
    struct Active {
        std::unique_ptr<Recording> recording;
        std::shared_ptr<TapParameters> parameters;
    };

    void advance();
    void finish(const std::string& bundleID, Recording& recording);

    MainLoop& mainLoop_;
    const AudioSystem& audio_;
    AudioFiles& files_;
    EngineLog& log_;
    WhenBroken whenBroken_;
    CycleClocks clocks_;
    std::map<std::string, Active> active_;
    std::optional<Subscription> timer_;  // While anything is being recorded.
    ClosingRecordings closing_{mainLoop_,
        [this](const std::string& bundleID, Recording& recording) { finish(bundleID, recording); }};
};

}  // namespace fadeloom
