// SPDX-License-Identifier: MIT
// The real program as a separate process, with its standard streams connected to the test.
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

/// Killed by the destructor, unless it has exited.
class RunningProgram {
public:
    static constexpr std::chrono::seconds timeout{20};  // For each wait.

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
    /// Reads standard output up to a line that begins with `beginning`, and returns that line; nullopt if the output
    /// ends, or the timeout expires, first.
    std::optional<std::string> lineWith(std::string_view beginning);
    /// The exit status, once the program exits; −1 if a signal ended it or the timeout expired.
    int exitStatus();
    /// Waits for the exit without reading; false if the timeout expires first.
    bool endsUnread();
    /// Everything on standard output, or standard error, that was not read before; waits for the program to exit.
    std::string restOfOutput();
    std::string errorText();

private:
    bool readMore(int descriptor, std::string& text);

    pid_t pid_ = -1;
    int input_ = -1;
    int output_ = -1;
    int error_ = -1;
    std::string unread_;
    int status_ = -1;  // As reported by the system, once known.
};

}  // namespace fadeloom
