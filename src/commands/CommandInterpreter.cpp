// SPDX-License-Identifier: MIT
#include "commands/CommandInterpreter.h"

#include "commands/CommandReplies.h"
#include "commands/CommandTable.h"
#include "commands/JsonText.h"
#include "commands/StateJson.h"

#include <algorithm>

namespace fadeloom {
namespace {

CommandInterpreter::Reply misunderstood(const std::string& text)
{
    return error(Obstacle(text, ReplyKind::usage));
}

}  // namespace

std::string CommandInterpreter::Reply::sentence() const
{
    return text.substr(std::min(text.size(), text.find(' ') + 1));
}

CommandInterpreter::Reply CommandInterpreter::interpret(std::string_view line, Caller caller)
{
    const auto words = wordsOf(line);
    if (!words)
        return misunderstood(words.error());
    return run(*words, caller);
}

CommandInterpreter::Reply CommandInterpreter::run(std::span<const std::string> words, Caller caller)
{
    if (words.empty())
        return {};
    const auto command = std::ranges::find(commands(), words.front(), &Command::name);
    if (command == commands().end())
        return misunderstood("unknown command " + asWord(words.front()) + ", help lists them");
    if (caller == Caller::sandboxed && command->access == Access::trusted)
        return error(
            Obstacle(std::string(command->name) + " is not for programs in a sandbox", ReplyKind::denied));
    const auto arguments = words.subspan(1);
    if (arguments.size() < command->least || arguments.size() > command->most)
        return misunderstood("usage: " + command->usage());
    return (this->*command->action)(arguments);
}

std::string CommandInterpreter::jsonOf(const Reply& reply) const
{
    if (reply.listing)
        return listJson(controller_, *reply.listing);
    if (reply.apps)
        return appsJson(controller_, *reply.apps);
    return jsonLine(FloatJson{{reply.kind == ReplyKind::ok ? "answer" : "error", reply.sentence()}});
}

CommandInterpreter::Reply CommandInterpreter::openPanel(Arguments)
{
    if (!panel_.open)
        return error("it runs without a panel");
    panel_.open();
    return ok("open");
}

CommandInterpreter::Reply CommandInterpreter::togglePanel(Arguments)
{
    if (!panel_.toggle)
        return error("it runs without a panel");
    panel_.toggle();
    return ok("toggle");
}

CommandInterpreter::Reply CommandInterpreter::help(Arguments)
{
    std::string text = "help";
    for (const auto& command : commands())
        text += "; " + command.usage();
    return ok(text);
}

CommandInterpreter::Reply CommandInterpreter::quit(Arguments)
{
    return {.text = "ok quit", .asksToQuit = true};
}

}  // namespace fadeloom
