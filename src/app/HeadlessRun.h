// SPDX-License-Identifier: MIT
// The program without a window: a controller, its events printed to a console, and a command interpreter.
#pragma once

#include "app/ServedControl.h"
#include "app/StatusTable.h"
#include "app/TerminalSize.h"
#include "commands/CommandInterpreter.h"
#include "commands/EventSource.h"
#include "commands/Watchers.h"
#include "control/AudioController.h"
#include "log/EngineLog.h"
#include "platform/Platform.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fadeloom {

class Console;

/// Thread: main.
class HeadlessRun {
public:
    struct Options {
        std::string version{};
        /// Called when a command requests the end.
        std::function<void()> quit = [] { };
        /// The size of the console's terminal, queried before each table. nullopt: no table is shown.
        std::function<std::optional<TerminalSize>()> terminalSize = [] { return std::nullopt; };
    };

    /// Starts. The platform's parts and the console must outlive this.
    HeadlessRun(const Platform& platform, Console& console, Options options);
    HeadlessRun(const HeadlessRun&) = delete;
    HeadlessRun& operator=(const HeadlessRun&) = delete;

    /// Executes one line of input and prints one line of reply; none for a blank line.
    void takeLine(std::string_view line);
    /// The part that other programs can reach.
    [[nodiscard]] ServedControl served(MainLoop& mainLoop);
    /// Sends watchers the end event.
    void endWatches() { watchers_.end(); }
    /// Shuts down: removes all taps, and completes a pending save before it returns.
    void shutdown();

private:
    [[nodiscard]] std::vector<StatusRow> statusRows();
    [[nodiscard]] std::string outputText(const std::string& bundleID) const;
    void showTable();
    void print(const Event& event);

    Console& console_;
    const Text& text_;
    Options options_;
    EngineLog engineLog_;
    AudioController controller_;
    EventSource events_;
    CommandInterpreter commands_;
    Watchers watchers_;
    Subscription tableTimer_;
};

}  // namespace fadeloom
