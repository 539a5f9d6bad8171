// SPDX-License-Identifier: MIT
// Requests between instances of the program, and their replies.
#pragma once

#include <sys/types.h>

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace fadeloom {

enum class InstanceRequest {
    open,  // Show the panel.
    toggle,  // Show the panel, or close it.
    quit,
    ping,  // Only replies.
};

enum class InstanceAnswer {
    done,
    noPanel,  // It runs without one.
    ending,  // It is exiting.
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

/// Handles a request, as far as possible. Thread: main.
using AnswerInstanceRequest = std::function<InstanceAnswer(InstanceRequest)>;

/// A command from another program.
struct InstanceCommand {
    std::string line;
    pid_t caller = 0;  // Its process; 0 if unknown.
    bool isSandboxed = true;  // Determined when its process connected.
    bool wantsJson = false;
};
/// Executes it; returns its one-line reply, which begins with the kind of reply. Thread: main.
using RunInstanceCommand = std::function<std::string(const InstanceCommand& command)>;

using SendInstanceLine = std::function<void(const std::string& line)>;
/// Sends events, as specified by the command's line, for as long as the result exists; null if nothing follows what was
/// sent immediately. Thread: main.
using WatchInstance =
    std::function<std::shared_ptr<void>(const InstanceCommand& command, SendInstanceLine send)>;

}  // namespace fadeloom
