// SPDX-License-Identifier: MIT
// A system log whose messages are seen on the console as well.
#pragma once

#include "platform/SystemLog.h"

namespace fadeloom {

class Console;
class MainLoop;

/// Thread: any; what comes on another thread is printed in a later turn of the main loop.
class PrintedLog final : public SystemLog {
public:
    /// All must outlive this, and `console` the main loop's last turn.
    PrintedLog(SystemLog& log, Console& console, MainLoop& mainLoop)
        : log_(log)
        , console_(console)
        , mainLoop_(mainLoop)
    {
    }

    void write(Level level, std::string_view message) override;

private:
    SystemLog& log_;
    Console& console_;
    MainLoop& mainLoop_;
};

}  // namespace fadeloom
