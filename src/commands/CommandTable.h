// SPDX-License-Identifier: MIT
// A line of the table of commands. For this folder's sources.
#pragma once

#include "commands/CommandInterpreter.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace fadeloom {

enum class Access { everyone, trusted };

/// What a word of a command is; what may stand there is completed by it.
enum class Argument {
    none,
    app,
    volume,
    output,  // Of an app.
    device,
    preset,
    ownPreset,
    choice,  // One of those that the usage names, parted by "|".
    text,  // Whatever the user thinks of.
};

struct CommandInterpreter::Command {
    std::string_view name;
    std::string_view arguments;  // As help shows them; those in brackets may be left out.
    std::size_t least;
    std::size_t most;
    Access access;
    Reply (CommandInterpreter::*action)(Arguments);
    std::array<Argument, 3> kinds;
    std::string_view summary;

    [[nodiscard]] std::string usage() const
    {
        return arguments.empty() ? std::string(name) : std::string(name).append(" ").append(arguments);
    }
};

}  // namespace fadeloom
