// SPDX-License-Identifier: MIT
// Completes the words of a partially typed command.
#include "commands/CommandReplies.h"
#include "commands/CommandTable.h"
#include "control/AudioController.h"
#include "engine/EQPresets.h"

#include <algorithm>

namespace fadeloom {
namespace {

/// "[on|off|toggle]" -> on, off, toggle; words in capitals are placeholders.
std::vector<std::string> choicesIn(std::string_view usage, std::size_t place)
{
    for (; place > 0 && usage.find(' ') != std::string_view::npos; --place)
        usage.remove_prefix(usage.find(' ') + 1);
    std::vector<std::string> choices;
    std::string word;
    for (const char byte : std::string(usage.substr(0, usage.find(' '))) + "|") {
        const bool isInside = byte != '|' && byte != '[' && byte != ']';
        if (isInside)
            word += byte;
        else if (!word.empty() && (word.front() < 'A' || word.front() > 'Z'))
            choices.push_back(word);
        if (!isInside)
            word.clear();
    }
    return choices;
}

}  // namespace

CommandInterpreter::Reply CommandInterpreter::complete(Arguments words)
{
    const std::string typed = words.empty() ? "" : words.back();
    std::string text = "complete";
    const auto offer = [&](std::string_view word, std::string_view summary) {
        const bool fits = text_.lowercased(std::string(word)).starts_with(text_.lowercased(typed));
        if (fits)
            text += "; " + asWord(word) + " " + asWord(summary);
    };
    if (words.size() <= 1) {
        for (const auto& command : commands())
            offer(command.name, command.summary);
        return ok(text);
    }
    const auto command = std::ranges::find(commands(), words.front(), &Command::name);
    const auto place = words.size() - 2;
    if (command == commands().end() || place >= command->kinds.size())
        return ok(text);
    const auto kind = command->kinds[place];
    const auto& state = controller_.state();
    const auto offerAll = [&](const auto& list, std::string_view summary) {
        for (const auto& word : list)
            offer(word, summary);
    };
    if (kind == Argument::app) {
        for (const auto& entry : *state.apps)
            offer(entry.bundleID, entry.name);
        for (const auto* const group : {"@playing", "@all", "@call", "@focused"})
            offer(group, "several apps, or the one in front");
    } else if (kind == Argument::output || kind == Argument::device) {
        for (const auto& each : *state.devices)
            offer(each.uid, each.name);
        if (kind == Argument::output)
            offerAll(std::array{"default", "next", "previous"}, "an output");
    } else if (kind == Argument::preset || kind == Argument::ownPreset) {
        if (kind == Argument::preset)
            for (const auto& each : EQPresets::all())
                offer(each.name, "built in");
        for (const auto& each : state.settings->userPresets)
            offer(each.name, "yours");
    } else if (kind == Argument::volume) {
        offerAll(std::array{"+5%", "-5%", "100%", "50%"}, "a volume");
    } else if (kind == Argument::choice) {
        offerAll(choicesIn(command->arguments, place), command->summary);
    }
    return ok(text);
}

}  // namespace fadeloom
