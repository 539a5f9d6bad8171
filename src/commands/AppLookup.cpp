// SPDX-License-Identifier: MIT
#include "commands/AppLookup.h"

#include "commands/PrintableText.h"
#include "control/AudioController.h"

#include <charconv>
#include <initializer_list>
#include <map>
#include <utility>
#include <vector>

namespace fadeloom {
namespace {

using NamesByIdentifier = std::map<std::string, std::string>;

NamesByIdentifier listedApps(const ControllerState& state)
{
    NamesByIdentifier names;
    for (const auto& entry : *state.apps)
        names.emplace(entry.bundleID, entry.name);
    return names;
}

NamesByIdentifier knownApps(const ControllerState& state)
{
    NamesByIdentifier names = state.settings->knownAppNames;
    for (const auto& [id, app] : state.settings->apps)
        names.emplace(id, id);
    return names;
}

std::vector<std::string> identifiersOf(
    const NamesByIdentifier& apps, const Text& text, const std::string& typed)
{
    std::vector<std::string> identifiers;
    const auto wanted = text.lowercased(typed);
    for (const auto& [id, name] : apps) {
        if (text.lowercased(name) == wanted)
            identifiers.push_back(id);
    }
    return identifiers;
}

std::string ambiguityText(const std::string& typed, const std::vector<std::string>& identifiers)
{
    auto text = asWord(typed) + " names several apps:";
    for (const auto& id : identifiers)
        text += " " + asWord(id);
    return text;
}

}  // namespace

std::optional<std::vector<std::string>> appsOfGroup(const ControllerState& state, const std::string& word)
{
    std::vector<std::string> ids;
    for (const auto& entry : *state.apps) {
        const bool isMeant = word == "@all" || (word == "@playing" && entry.isPlaying)
            || (word == "@call" && *state.callApp == entry.bundleID);
        if (isMeant)
            ids.push_back(entry.bundleID);
    }
    if (word != "@all" && word != "@playing" && word != "@call")
        return std::nullopt;
    return ids;
}

std::expected<std::string, std::string> findApp(
    const ControllerState& state, const Text& text, const std::string& typed)
{
    const auto listed = listedApps(state);
    const auto known = knownApps(state);
    if (listed.contains(typed) || known.contains(typed))
        return typed;

    for (const auto* const apps : {&listed, &known}) {
        const auto identifiers = identifiersOf(*apps, text, typed);
        if (identifiers.size() == 1)
            return identifiers.front();
        if (identifiers.size() > 1)
            return std::unexpected(ambiguityText(typed, identifiers));
    }
    return std::unexpected("unknown app " + asWord(typed));
}

std::expected<std::vector<std::string>, std::string> appsNamed(
    const AudioController& controller, const Text& text, const std::string& word)
{
    if (const auto group = appsOfGroup(controller.state(), word))
        return *group;
    constexpr std::string_view byProcess = "pid:";
    if (word.starts_with(byProcess)) {
        ProcessID process = -1;
        const auto* const end = word.data() + word.size();
        const bool isNumber = std::from_chars(word.data() + byProcess.size(), end, process).ptr == end;
        if (const auto id = isNumber ? controller.appOfProcess(process) : std::nullopt)
            return std::vector{*id};
        return std::unexpected(
            "no app in the mixer has the process " + asWord(word.substr(byProcess.size())));
    }
    auto id = findApp(controller.state(), text, word);
    if (!id)
        return std::unexpected(std::move(id.error()));
    return std::vector{std::move(*id)};
}

}  // namespace fadeloom
