// SPDX-License-Identifier: MIT
#include "platform/linux/SyslogSystemLog.h"

#include <algorithm>
#include <string>

#include <syslog.h>

namespace fadeloom {

SyslogSystemLog::SyslogSystemLog(Echo echo)
{
    openlog("fadeloom", echo == Echo::standardError ? LOG_PID | LOG_PERROR : LOG_PID, LOG_USER);
}

SyslogSystemLog::~SyslogSystemLog()
{
    closelog();
}

void SyslogSystemLog::write(Level level, std::string_view message)
{
    std::string text{message};
    std::ranges::replace(text, '\0', ' ');  // It would end the message.
    syslog(level == Level::error ? LOG_ERR : LOG_NOTICE, "com.fadeloom.app engine: %s", text.c_str());
}

}  // namespace fadeloom
