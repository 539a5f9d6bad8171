// SPDX-License-Identifier: MIT
#include "log/EngineLog.h"

#include "base/FileDescriptor.h"
#include "platform/BackgroundQueue.h"
#include "platform/Platform.h"
#include "platform/SystemLog.h"
#include "settings/SettingsFile.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <cstdint>
#include <ctime>
#include <string>
#include <system_error>
#include <utility>

namespace fadeloom {

namespace {

namespace fs = std::filesystem;

// A file above this size is rotated. One old file is kept, so the total never exceeds twice this size by much.
constexpr std::uintmax_t largestSize = 256000;

// Of equal width, so that the messages are aligned.
constexpr std::string_view noticeLevel = "INFO ";
constexpr std::string_view errorLevel = "ERROR";

std::string timestamp(std::chrono::system_clock::time_point moment)
{
    const std::time_t seconds = std::chrono::system_clock::to_time_t(moment);
    std::tm utc{};
    ::gmtime_r(&seconds, &utc);
    std::array<char, 40> text{};
    const auto length = std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%SZ", &utc);
    return {text.data(), length};
}

void rotate(const fs::path& folder, const fs::path& file)
{
    std::error_code unknownSize;
    const auto size = fs::file_size(file, unknownSize);
    if (unknownSize || size <= largestSize)
        return;
    const auto old = folder / "engine.old.log";
    std::error_code ignored;
    fs::remove_all(old, ignored);
    fs::rename(file, old, ignored);
}

// Errors here cannot be reported anywhere; the system log has the message anyway.
void writeLine(const fs::path& folder, const std::string& line)
{
    std::error_code ignored;
    fs::create_directories(folder, ignored);
    const auto file = folder / "engine.log";
    rotate(folder, file);

    // Non-blocking: a pipe in the file's place would block the queue forever.
    constexpr int flags = O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK;
    const FileDescriptor descriptor(::open(file.c_str(), flags, S_IRUSR | S_IWUSR));
    if (descriptor.isOpen()) {
        [[maybe_unused]] const auto written = ::write(descriptor.get(), line.data(), line.size());
    }
}

}  // namespace

EngineLog::EngineLog(SystemLog& systemLog, BackgroundQueue& queue, fs::path folder, Clock now)
    : systemLog_(systemLog)
    , queue_(queue)
    , folder_(std::move(folder))
    , now_(std::move(now))
{
}

EngineLog::EngineLog(const Platform& platform)
    : EngineLog(
          platform.systemLog, platform.logQueue, SettingsFile::defaultURL(platform.folders).parent_path())
{
}

void EngineLog::notice(std::string_view message)
{
    systemLog_.write(SystemLog::Level::notice, message);
    append(noticeLevel, message);
}

void EngineLog::error(std::string_view message)
{
    systemLog_.write(SystemLog::Level::error, message);
    append(errorLevel, message);
}

void EngineLog::append(std::string_view level, std::string_view message)
{
    // Timestamps the call, not the write.
    auto line = timestamp(now_());
    line.append(" ").append(level).append(" ").append(message).append("\n");
    queue_.submit(std::chrono::milliseconds(0),
        [folder = folder_, line = std::move(line)] { writeLine(folder, line); });
}

}  // namespace fadeloom
