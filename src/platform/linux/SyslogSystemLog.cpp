// SPDX-License-Identifier: MIT
#include "platform/linux/SyslogSystemLog.h"

#include <syslog.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>

namespace fadeloom {

namespace {

// The level precedes its text as one character, so that both are queued together.
constexpr char errorMark = 'E';
constexpr char noticeMark = 'N';

void writeMarked(std::string_view text)
{
    const auto priority = text.front() == errorMark ? LOG_ERR : LOG_NOTICE;
    syslog(priority, "com.fadeloom.app engine: %s", std::string(text.substr(1)).c_str());
}

std::string dropNotice(std::uint64_t dropped)
{
    return errorMark + std::to_string(dropped) + " message(s) dropped, for nothing took them";
}

}  // namespace

SyslogSystemLog::SyslogSystemLog(Echo echo)
    : writer_(&writeMarked, &dropNotice)
{
    openlog("fadeloom", echo == Echo::standardError ? LOG_PID | LOG_PERROR : LOG_PID, LOG_USER);
}

SyslogSystemLog::~SyslogSystemLog()
{
    if (writer_.close())
        closelog();  // A thread that is blocked in the log still uses it.
}

void SyslogSystemLog::write(Level level, std::string_view message)
{
    std::string text(1, level == Level::error ? errorMark : noticeMark);
    text += message;
    std::ranges::replace(text, '\0', ' ');  // It would terminate the message.
    writer_.write(std::move(text));
}

}  // namespace fadeloom
