// SPDX-License-Identifier: MIT
#include "commands/CommandInterpreter.h"

#include "commands/AppLookup.h"
#include "commands/CommandReplies.h"
#include "commands/NumberText.h"
#include "control/AppSettings.h"
#include "control/AudioController.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace fadeloom {

enum class Access { everyone, trusted };

struct CommandInterpreter::Command {
    std::string_view name;
    std::string_view arguments;  // As help shows them; those in brackets may be left out.
    std::size_t least;
    std::size_t most;
    Access access;
    Reply (CommandInterpreter::*action)(Arguments);

    [[nodiscard]] std::string usage() const
    {
        return arguments.empty() ? std::string(name) : std::string(name).append(" ").append(arguments);
    }
};

std::span<const CommandInterpreter::Command> CommandInterpreter::commands()
{
    using enum Access;
    using Self = CommandInterpreter;
    static constexpr std::array all = {
        Command{"volume", "APP [0.5|50%|+5%|-3dB|=-6dB]", 1, 2, everyone, &Self::setVolume},
        Command{"mute", "APP [on|off|toggle]", 1, 2, everyone, &Self::setMuted},
        Command{"output", "APP [UID|NAME|default|next|previous]", 1, 2, everyone, &Self::setOutput},
        Command{"eq", "APP [on|off|toggle]", 1, 2, everyone, &Self::setEqualizer},
        Command{"band", "APP 1 DB", 3, 3, everyone, &Self::setBand},
        Command{"preamp", "APP [DB]", 1, 2, everyone, &Self::setPreamp},
        Command{"preset", "APP [NAME]", 1, 2, everyone, &Self::applyPreset},
        Command{"save-preset", "APP NAME", 2, 2, trusted, &Self::savePreset},
        Command{"delete-preset", "NAME", 1, 1, trusted, &Self::deletePreset},
        Command{"record", "APP start|stop", 2, 2, trusted, &Self::record},
        Command{"reveal", "", 0, 0, trusted, &Self::reveal},
        Command{"recordings", "PATH|default", 1, 1, trusted, &Self::setRecordingsFolder},
        Command{"default", "UID", 1, 1, trusted, &Self::setDefault},
        Command{"limit", "1|1.25|1.5|2", 1, 1, trusted, &Self::setVolumeLimit},
        Command{"headroom", "on|off|toggle", 1, 1, trusted, &Self::setHeadroom},
        Command{"calls", "on|off|toggle", 1, 1, trusted, &Self::setCalls},
        Command{"call-level", "0.2", 1, 1, trusted, &Self::setCallLevel},
        Command{"call-app", "APP on|off|toggle", 2, 2, trusted, &Self::setCallApp},
        Command{"login", "on|off|toggle", 1, 1, trusted, &Self::setLogin},
        Command{"theme", "system|light|dark", 1, 1, trusted, &Self::setTheme},
        Command{"meters", "on|off|toggle", 1, 1, trusted, &Self::setMeters},
        Command{"levels", "on|off|toggle", 1, 1, trusted, &Self::watchLevels},
        Command{"list", "", 0, 0, everyone, &Self::list},
        Command{"status", "[APP]", 0, 1, everyone, &Self::status},
        Command{"open", "", 0, 0, everyone, &Self::openPanel},
        Command{"toggle", "", 0, 0, everyone, &Self::togglePanel},
        Command{"help", "", 0, 0, everyone, &Self::help},
        Command{"quit", "", 0, 0, trusted, &Self::quit},
    };
    return all;
}

CommandInterpreter::Reply CommandInterpreter::interpret(std::string_view line, Caller caller)
{
    const auto misunderstood = [](const std::string& text) {
        return error(Obstacle(text, ReplyKind::usage));
    };
    const auto words = wordsOf(line);
    if (!words)
        return misunderstood(words.error());
    if (words->empty())
        return {};

    const auto command = std::ranges::find(commands(), words->front(), &Command::name);
    if (command == commands().end())
        return misunderstood("unknown command " + asWord(words->front()) + ", help lists them");
    if (caller == Caller::sandboxed && command->access == Access::trusted)
        return error(
            Obstacle(std::string(command->name) + " is not for programs in a sandbox", ReplyKind::denied));
    const auto arguments = Arguments(*words).subspan(1);
    if (arguments.size() < command->least || arguments.size() > command->most)
        return misunderstood("usage: " + command->usage());
    return (this->*command->action)(arguments);
}

std::expected<std::vector<std::string>, std::string> CommandInterpreter::appsNamed(
    const std::string& word) const
{
    if (const auto group = appsOfGroup(controller_.state(), word))
        return *group;
    constexpr std::string_view byProcess = "pid:";
    if (word.starts_with(byProcess)) {
        ProcessID process = -1;
        const auto* const end = word.data() + word.size();
        const bool isNumber = std::from_chars(word.data() + byProcess.size(), end, process).ptr == end;
        if (const auto id = isNumber ? controller_.appOfProcess(process) : std::nullopt)
            return std::vector{*id};
        return std::unexpected(
            "no app in the mixer has the process " + asWord(word.substr(byProcess.size())));
    }
    auto id = findApp(controller_.state(), text_, word);
    if (!id)
        return std::unexpected(std::move(id.error()));
    return std::vector{std::move(*id)};
}

std::string CommandInterpreter::appText(const std::string& bundleID) const
{
    const auto& state = controller_.state();
    const auto app = appSettings(*state.settings, bundleID);
    auto text = "volume " + numberText(app.volume) + (app.muted ? " mute on" : " mute off")
        + (app.eqEnabled ? " eq on" : " eq off") + " preset "
        + (app.eqPresetName ? asWord(*app.eqPresetName) : "none") + " output "
        + (app.outputUID ? asWord(*app.outputUID) : "default");
    if (controller_.isOutputMissing(bundleID))
        text += " missing";
    if (state.recordings->contains(bundleID))
        text += " recording";
    if (*state.callApp == bundleID)
        text += " calling";
    const auto& levels = *controller_.levels().levels();
    if (const auto level = levels.find(bundleID); level != levels.end())
        text += " level " + numberText(level->second);
    return text;
}

CommandInterpreter::Reply CommandInterpreter::list(Arguments)
{
    const auto& state = controller_.state();
    auto text = "list " + std::to_string(state.apps->size()) + " apps";
    for (const auto& entry : *state.apps) {
        text += "; app " + asWord(entry.bundleID) + " " + asWord(entry.name)
            + (entry.isPlaying ? " playing " : " silent ") + appText(entry.bundleID);
    }
    for (const auto& device : *state.devices) {
        text += "; device " + asWord(device.uid) + " " + asWord(device.name);
        if (device.uid == *state.defaultDeviceUID)
            text += " default";
    }
    for (const auto& preset : state.settings->userPresets)
        text += "; preset " + asWord(preset.name);
    return ok(text);
}

// For a bar: the app that is named, else the first that plays.
CommandInterpreter::Reply CommandInterpreter::status(Arguments arguments)
{
    const auto& apps = *controller_.state().apps;
    auto entry = std::ranges::find(apps, true, &AppEntry::isPlaying);
    if (!arguments.empty()) {
        const auto ids = appsNamed(arguments[0]);
        if (!ids)
            return unknown(ids.error());
        entry = std::ranges::find(apps, ids->front(), &AppEntry::bundleID);
    }
    if (entry == apps.end())
        return ok("status");
    const auto app = appSettings(*controller_.state().settings, entry->bundleID);
    const auto percent = std::lround(app.volume * 100);
    return ok("status " + asWord(entry->name) + " " + (app.muted ? "muted" : std::to_string(percent) + "%"));
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
