// SPDX-License-Identifier: MIT
// The words that the sources of the headless commands share.
#pragma once

#include "commands/CommandInterpreter.h"
#include "commands/LineWords.h"
#include "commands/PrintableText.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace fadeloom {

/// What stands in the way of a command, for the user.
using Problem = std::optional<std::string>;

inline CommandInterpreter::Reply ok(const std::string& text)
{
    return {"ok " + text};
}

inline CommandInterpreter::Reply error(const std::string& text)
{
    return {"error " + text};
}

/// "volume com.example.player 0.5": the command as it was understood.
inline CommandInterpreter::Reply done(std::string_view command, std::span<const std::string> arguments)
{
    std::string text(command);
    for (const auto& argument : arguments)
        text += " " + asWord(argument);
    return ok(text);
}

inline Problem setSwitch(bool& value, const std::string& word)
{
    if (word != "on" && word != "off")
        return "say on or off, not " + asWord(word);
    value = word == "on";
    return std::nullopt;
}

}  // namespace fadeloom
