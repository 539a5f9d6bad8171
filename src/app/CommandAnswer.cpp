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

std::string answerCommand(CommandInterpreter& commands, const std::string& line, AnswerForm form,
    Caller caller, const std::function<void()>& quit)
{
    const auto reply = commands.interpret(line, caller);
    if (reply.asksToQuit)
        quit();
    const bool isJson = form == AnswerForm::json && reply.kind == ReplyKind::ok;
    return std::string(nameOf(reply.kind)) + " " + (isJson ? commands.jsonOf(reply) : reply.text);
}

}  // namespace fadeloom
