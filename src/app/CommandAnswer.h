// SPDX-License-Identifier: MIT
// Answers to commands from other programs.
#pragma once

#include "commands/CommandInterpreter.h"

#include <functional>
#include <string>

namespace fadeloom {

/// How an answer is worded.
enum class AnswerForm { text, json };

/// Does what the line says. The answer is one line: its kind ("ok", "usage", "unknown", "refused" or "denied"), a blank,
/// and what the interpreter answers, as JSON if so wanted and it is no error. `quit` is called when the command asks for
/// the end.
[[nodiscard]] std::string answerCommand(CommandInterpreter& commands, const std::string& line,
    AnswerForm form, Caller caller, const std::function<void()>& quit);

}  // namespace fadeloom
