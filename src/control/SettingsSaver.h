// SPDX-License-Identifier: MIT
// Writes the settings half a second after the last change, off the main thread.
//
// Debounced, because dragging a slider changes the settings at every step.
#pragma once

#include "base/LifeToken.h"
#include "platform/BackgroundQueue.h"
#include "platform/MainLoop.h"
#include "settings/SettingsData.h"
#include "settings/SettingsError.h"

#include <atomic>
#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace fadeloom {

/// Thread: main.
class SettingsSaver {
public:
    /// Receives write errors on the main loop, only during the saver's lifetime.
    using Failed = std::function<void(const SettingsFileError& error)>;

    static constexpr std::chrono::milliseconds delay{500};

    SettingsSaver(BackgroundQueue& queue, MainLoop& mainLoop, std::filesystem::path file, Failed failed);

    /// Writes the current `settings` after the delay, replacing a pending write.
    void schedule(const SettingsData& settings);
    /// Flushes the pending write, and retries a failed one. Later writes are immediate.
    void finish();

private:
    struct Snapshot {
        SettingsData settings;
        std::atomic<bool> isSaved = false;  // Set by the queue's thread.
    };

    BackgroundQueue& queue_;
    MainLoop& mainLoop_;
    std::filesystem::path file_;
    Failed failed_;
    std::shared_ptr<Snapshot> snapshot_;  // The last one; shared with the task.
    std::shared_ptr<BackgroundQueue::Work> saveWork_;  // Shared with the queue.
    bool isFinished_ = false;
    LifeToken life_;
};

}  // namespace fadeloom
