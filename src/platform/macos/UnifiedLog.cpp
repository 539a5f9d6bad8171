// SPDX-License-Identifier: MIT
#include "platform/macos/UnifiedLog.h"

#include <os/log.h>

#include <string>

namespace fadeloom {

UnifiedLog::UnifiedLog()
    : log_(os_log_create("com.fadeloom.app", "engine"))
{
}

void UnifiedLog::write(Level level, std::string_view message)
{
    // Without "public" the text is redacted.
    const auto type = level == Level::error ? OS_LOG_TYPE_ERROR : OS_LOG_TYPE_DEFAULT;
    os_log_with_type(log_, type, "%{public}s", std::string(message).c_str());
}

}  // namespace fadeloom
