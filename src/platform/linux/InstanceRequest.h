// SPDX-License-Identifier: MIT
// What one instance of the program asks of another, and what it is told.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <sys/types.h>

namespace fadeloom {

enum class InstanceRequest {
    open,  // Show the panel.
    toggle,  // Show the panel, or close it.
    quit,
    ping,  // Nothing but an answer.
};

enum class InstanceAnswer {
    done,
    noPanel,  // It runs without one.
    ending,  // It will be gone in a moment.
};

struct InstanceRequestName {
    InstanceRequest request;
    std::string_view name;
};
inline constexpr std::array<InstanceRequestName, 4> instanceRequestNames = {{
    {InstanceRequest::open, "Open"},
    {InstanceRequest::toggle, "Toggle"},
    {InstanceRequest::quit, "Quit"},
    {InstanceRequest::ping, "Ping"},
}};

struct InstanceAnswerName {
    InstanceAnswer answer;
    std::string_view name;
};
inline constexpr std::array<InstanceAnswerName, 3> instanceAnswerNames = {{
    {InstanceAnswer::done, "Done"},
    {InstanceAnswer::noPanel, "NoPanel"},
    {InstanceAnswer::ending, "Ending"},
}};

[[nodiscard]] std::string_view nameOf(InstanceRequest request);
[[nodiscard]] std::string_view nameOf(InstanceAnswer answer);
[[nodiscard]] std::optional<InstanceRequest> instanceRequestNamed(std::string_view name);
[[nodiscard]] std::optional<InstanceAnswer> instanceAnswerNamed(std::string_view name);

/// Does what is asked, as far as that can be done. Thread: main.
using AnswerInstanceRequest = std::function<InstanceAnswer(InstanceRequest)>;

/// A command of another program.
struct InstanceCommand {
    std::string line;
    pid_t caller = 0;  // Its process; 0 for an unknown one.
    bool wantsJson = false;
};
/// Does what it says; returns its answer in one line, which begins with the kind of answer. Thread: main.
using RunInstanceCommand = std::function<std::string(const InstanceCommand& command)>;

using SendInstanceLine = std::function<void(const std::string& line)>;
/// Has what happens sent, as the command's line says, for as long as the result lives; null when nothing comes after
/// what was sent at once. Thread: main.
using WatchInstance =
    std::function<std::shared_ptr<void>(const InstanceCommand& command, SendInstanceLine send)>;

}  // namespace fadeloom
