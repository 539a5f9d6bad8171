// SPDX-License-Identifier: MIT
// A log of what happens to taps and devices, for diagnosing later why something was not audible.
//
// Each message goes to the system log immediately, and as one line to a small file beside the settings, which a user
// can send. The file is opened and closed for every line, so that the log survives a crash.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <string_view>

namespace fadeloom {

class BackgroundQueue;
class SystemLog;
struct Platform;

/// Never fails as far as the caller is concerned and never blocks on the disk. Thread: any but the IO thread.
class EngineLog {
public:
    using Clock = std::function<std::chrono::system_clock::time_point()>;

    /// `queue` writes the lines one after the other; pending lines outlive this object. `folder`: of the settings file;
    /// created if it is missing. `systemLog` and `queue` must outlive this object.
    EngineLog(SystemLog& systemLog, BackgroundQueue& queue, std::filesystem::path folder,
        Clock now = std::chrono::system_clock::now);
    /// The program's log: in the settings folder, on the platform's queue for it.
    explicit EngineLog(const Platform& platform);
    EngineLog(const EngineLog&) = delete;
    EngineLog& operator=(const EngineLog&) = delete;

    void notice(std::string_view message);
    void error(std::string_view message);

private:
    void append(std::string_view level, std::string_view message);

    SystemLog& systemLog_;
    BackgroundQueue& queue_;
    const std::filesystem::path folder_;
    const Clock now_;
};

}  // namespace fadeloom
