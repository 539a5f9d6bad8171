// SPDX-License-Identifier: MIT
// Shared error messages and replies of the headless commands.
#pragma once

#include "commands/CommandInterpreter.h"
#include "commands/LineWords.h"
#include "commands/PrintableText.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace fadeloom {

/// Why a command fails, for the user.
struct Obstacle {
    // Implicit: most consist only of a text.
    Obstacle(std::string what, ReplyKind how = ReplyKind::refused)
        : text(std::move(what))
        , kind(how)
    {
    }
    Obstacle(const char* what)
        : Obstacle(std::string(what))
    {
    }

    std::string text;
    ReplyKind kind;
};
using Problem = std::optional<Obstacle>;

inline CommandInterpreter::Reply ok(const std::string& text)
{
    return {"ok " + text};
}

inline CommandInterpreter::Reply error(const Obstacle& obstacle)
{
    return {.text = "error " + obstacle.text, .kind = obstacle.kind};
}
inline CommandInterpreter::Reply unknown(const std::string& text)
{
    return error(Obstacle(text, ReplyKind::unknownName));
}

/// "volume com.example.player 0.5": the command as it was interpreted.
inline CommandInterpreter::Reply done(std::string_view command, std::span<const std::string> arguments)
{
    std::string text(command);
    for (const auto& argument : arguments)
        text += " " + asWord(argument);
    return ok(text);
}

inline Problem setSwitch(bool& value, const std::string& word)
{
    if (word == "toggle")
        value = !value;
    else if (word == "on" || word == "off")
        value = word == "on";
    else
        return "say on, off or toggle, not " + asWord(word);
    return std::nullopt;
}

}  // namespace fadeloom
