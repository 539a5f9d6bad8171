// SPDX-License-Identifier: MIT
// Replies to commands from other programs.
#pragma once

#include "commands/CommandInterpreter.h"

#include <functional>
#include <string>

namespace fadeloom {

/// The format of a reply.
enum class AnswerForm { text, json };

/// Executes a line. The reply is one line: its kind ("ok", "usage", "unknown", "refused" or "denied"), a space, and the
/// interpreter's reply, as JSON if requested and not an error. `quit` is called if the command requests it.
[[nodiscard]] std::string answerCommand(CommandInterpreter& commands, const std::string& line,
    AnswerForm form, Caller caller, const std::function<void()>& quit);

}  // namespace fadeloom
