// SPDX-License-Identifier: MIT
// The program without a window: a controller, what it does told on a console, and commands taken from it.
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
        /// Called when a command asks for the end.
        std::function<void()> quit = [] { };
        /// The size of the terminal that the console is; asked before each status table. Absent: no table is shown.
        std::function<std::optional<TerminalSize>()> terminalSize = [] { return std::nullopt; };
    };

    /// Starts. The platform's parts and the console must outlive this.
    HeadlessRun(const Platform& platform, Console& console, Options options);
    HeadlessRun(const HeadlessRun&) = delete;
    HeadlessRun& operator=(const HeadlessRun&) = delete;

    /// Does what one line of input says, and prints one line in answer; none for a line without any word.
    void takeLine(std::string_view line);
    /// What other programs reach.
    [[nodiscard]] ServedControl served(MainLoop& mainLoop);
    /// Tells those that are told what happens that it is over.
    void endWatches() { watchers_.end(); }
    /// Ends in good order: no tap is left, and a save that waits is done when this returns.
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
