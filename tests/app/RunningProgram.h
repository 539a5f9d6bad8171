// SPDX-License-Identifier: MIT
// The real program as a process of its own, with its standard streams in our hands.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fadeloom {

/// Killed when this object ends, if it has not ended by then.
class RunningProgram {
public:
    static constexpr std::chrono::seconds timeout{20};  // Before a wait is given up.

    /// `environment`: variables that differ from our own.
    explicit RunningProgram(const std::vector<std::string>& arguments,
        const std::map<std::string, std::string>& environment = {});
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;
    ~RunningProgram();

    void write(std::string_view text);
    void closeInput();
    void closeOutput();
    void signal(int number) const;
    /// Signals the process that does the work, not the one that was started, which is its guardian.
    void signalProgram(int number) const;
    /// Reads standard output until a line begins with `beginning`, and returns that line; absent when the output
    /// ends, or our timeout does, before.
    std::optional<std::string> lineWith(std::string_view beginning);
    /// The exit status, once the program ends; −1 when a signal ended it or our timeout did.
    int exitStatus();
    /// Waits for the end and reads nothing meanwhile; false when our timeout ends before.
    bool endsUnread();
    /// Everything on standard output, or standard error, that was not read before; waits for the program's end.
    std::string restOfOutput();
    std::string errorText();

private:
    bool readMore(int descriptor, std::string& text);

    pid_t pid_ = -1;
    int input_ = -1;
    int output_ = -1;
    int error_ = -1;
    std::string unread_;
    int status_ = -1;  // As the system tells it, once it is known.
};

}  // namespace fadeloom
