// SPDX-License-Identifier: MIT
// What happens to taps and devices, told to whoever has to find out later why something was not heard.
//
// Each message goes two ways: to the system's log at once, and as one line to a small file beside the settings, which
// a user can send. The file is opened and closed for every line, so that what was told survives a crash.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <string_view>

namespace fadeloom {

class BackgroundQueue;
class SystemLog;
struct Platform;

/// Never fails towards its caller and never waits for the disk. Thread: any but the IO thread.
class EngineLog {
public:
    using Clock = std::function<std::chrono::system_clock::time_point()>;

    /// `queue` does the writing, one line after the other; lines that wait there outlive this. `folder`: of the
    /// settings file; made when it is missing. `systemLog` and `queue` outlive this.
    EngineLog(SystemLog& systemLog, BackgroundQueue& queue, std::filesystem::path folder,
        Clock now = std::chrono::system_clock::now);
    /// The program's own: in the folder of the settings, on the platform's queue for it.
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
