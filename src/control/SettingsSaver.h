// SPDX-License-Identifier: MIT
// Writes the settings half a second after the last change, off the main thread.
//
// A slider that is dragged changes the settings at every step; one write, of the last state, is enough.
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
    /// Gets what was wrong with a write, on the main loop, and only while the saver lives.
    using Failed = std::function<void(const SettingsFileError& error)>;

    static constexpr std::chrono::milliseconds delay{500};

    SettingsSaver(BackgroundQueue& queue, MainLoop& mainLoop, std::filesystem::path file, Failed failed);

    /// Writes `settings` as they are now after the delay, in place of a write that has not begun.
    void schedule(const SettingsData& settings);
    /// Does the last scheduled write now if it has not been done, again if it failed. Later ones are done at once.
    void finish();

private:
    struct Snapshot {
        SettingsData settings;
        std::atomic<bool> isSaved = false;  // Told by the queue's thread.
    };

    BackgroundQueue& queue_;
    MainLoop& mainLoop_;
    std::filesystem::path file_;
    Failed failed_;
    std::shared_ptr<Snapshot> snapshot_;  // The last one; shared with the work.
    std::shared_ptr<BackgroundQueue::Work> saveWork_;  // Shared with the queue.
    bool isFinished_ = false;
    LifeToken life_;
};

}  // namespace fadeloom
