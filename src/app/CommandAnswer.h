// SPDX-License-Identifier: MIT
// Answers to commands from other programs.
#pragma once

#include "commands/CommandInterpreter.h"

#include <functional>
#include <string>

namespace fadeloom {

/// Does what the line says. The answer is one line: its kind ("ok", "usage", "unknown", "refused" or "denied"), a blank,
/// and what the interpreter answers. `quit` is called when the command asks for the end.
[[nodiscard]] std::string answerCommand(
    CommandInterpreter& commands, const std::string& line, Caller caller, const std::function<void()>& quit);

}  // namespace fadeloom
