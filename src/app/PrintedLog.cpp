// SPDX-License-Identifier: MIT
#include "app/PrintedLog.h"

#include "app/Console.h"
#include "platform/MainLoop.h"

#include <string>

namespace fadeloom {

void PrintedLog::write(Level level, std::string_view message)
{
    log_.write(level, message);

    const auto line = std::string(level == Level::error ? "log-error " : "log ").append(message);
    if (mainLoop_.isCurrent())
        console_.print(line);
    else
        mainLoop_.post([&console = console_, line] { console.print(line); });
}

}  // namespace fadeloom
