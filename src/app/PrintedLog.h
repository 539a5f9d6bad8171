// SPDX-License-Identifier: MIT
// A system log whose messages are also printed to the console.
#pragma once

#include "platform/SystemLog.h"

namespace fadeloom {

class Console;
class MainLoop;

/// Thread: any; messages from other threads are printed through the main loop.
class PrintedLog final : public SystemLog {
public:
    /// All arguments must outlive this, and `console` the last iteration of the main loop.
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
