// SPDX-License-Identifier: MIT
#include "app/CommandAnswer.h"

namespace fadeloom {

namespace {

const char* nameOf(ReplyKind kind)
{
    switch (kind) {
    case ReplyKind::ok:
        return "ok";
    case ReplyKind::usage:
        return "usage";
    case ReplyKind::unknownName:
        return "unknown";
    case ReplyKind::refused:
        return "refused";
    case ReplyKind::denied:
        return "denied";
    }
    return "refused";
}

}  // namespace

std::string answerCommand(
    CommandInterpreter& commands, const std::string& line, Caller caller, const std::function<void()>& quit)
{
    const auto reply = commands.interpret(line, caller);
    if (reply.asksToQuit)
        quit();
    return std::string(nameOf(reply.kind)) + " " + reply.text;
}

}  // namespace fadeloom
