// SPDX-License-Identifier: MIT
#include "commands/CommandInterpreter.h"

#include "commands/CommandReplies.h"
#include "commands/NumberText.h"
#include "control/AppSettings.h"
#include "control/AudioController.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace fadeloom {

struct CommandInterpreter::Command {
    std::string_view name;
    std::string_view arguments;  // As help shows them.
    std::size_t argumentCount;
    Reply (CommandInterpreter::*action)(Arguments);

    [[nodiscard]] std::string usage() const
    {
        return arguments.empty() ? std::string(name) : std::string(name).append(" ").append(arguments);
    }
};

std::span<const CommandInterpreter::Command> CommandInterpreter::commands()
{
    static constexpr std::array all = {
        Command{"volume", "APP 0.5", 2, &CommandInterpreter::setVolume},
        Command{"mute", "APP on|off", 2, &CommandInterpreter::setMuted},
        Command{"output", "APP UID|default", 2, &CommandInterpreter::setOutput},
        Command{"eq", "APP on|off", 2, &CommandInterpreter::setEqualizer},
        Command{"band", "APP 1 DB", 3, &CommandInterpreter::setBand},
        Command{"preamp", "APP DB", 2, &CommandInterpreter::setPreamp},
        Command{"preset", "APP NAME", 2, &CommandInterpreter::applyPreset},
        Command{"save-preset", "APP NAME", 2, &CommandInterpreter::savePreset},
        Command{"delete-preset", "NAME", 1, &CommandInterpreter::deletePreset},
        Command{"record", "APP start|stop", 2, &CommandInterpreter::record},
        Command{"reveal", "", 0, &CommandInterpreter::reveal},
        Command{"recordings", "PATH|default", 1, &CommandInterpreter::setRecordingsFolder},
        Command{"default", "UID", 1, &CommandInterpreter::setDefault},
        Command{"limit", "1|1.25|1.5|2", 1, &CommandInterpreter::setVolumeLimit},
        Command{"headroom", "on|off", 1, &CommandInterpreter::setHeadroom},
        Command{"calls", "on|off", 1, &CommandInterpreter::setCalls},
        Command{"call-level", "0.2", 1, &CommandInterpreter::setCallLevel},
        Command{"call-app", "APP on|off", 2, &CommandInterpreter::setCallApp},
        Command{"login", "on|off", 1, &CommandInterpreter::setLogin},
        Command{"theme", "system|light|dark", 1, &CommandInterpreter::setTheme},
        Command{"meters", "on|off", 1, &CommandInterpreter::setMeters},
        Command{"levels", "on|off", 1, &CommandInterpreter::watchLevels},
        Command{"list", "", 0, &CommandInterpreter::list},
        Command{"help", "", 0, &CommandInterpreter::help},
        Command{"quit", "", 0, &CommandInterpreter::quit},
    };
    return all;
}

CommandInterpreter::Reply CommandInterpreter::interpret(std::string_view line)
{
    const auto words = wordsOf(line);
    if (!words)
        return error(words.error());
    if (words->empty())
        return {};

    const auto command = std::ranges::find(commands(), words->front(), &Command::name);
    if (command == commands().end())
        return error("unknown command " + asWord(words->front()) + ", help lists them");
    const auto arguments = Arguments(*words).subspan(1);
    if (arguments.size() != command->argumentCount)
        return error("usage: " + command->usage());
    return (this->*command->action)(arguments);
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
