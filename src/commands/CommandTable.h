// SPDX-License-Identifier: MIT
// An entry of the command table. For this folder's sources.
#pragma once

#include "commands/CommandInterpreter.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace fadeloom {

enum class Access { everyone, trusted };

/// The kind of an argument, which determines its completions.
enum class Argument {
    none,
    app,
    volume,
    output,  // Of an app.
    device,
    preset,
    ownPreset,
    choice,  // One of the choices in the usage, separated by "|".
    text,  // Free text.
};

struct CommandInterpreter::Command {
    std::string_view name;
    std::string_view arguments;  // As shown by help; those in brackets are optional.
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
