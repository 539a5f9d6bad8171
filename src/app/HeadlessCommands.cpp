// SPDX-License-Identifier: MIT
#include "app/HeadlessCommands.h"

#include "app/HeadlessReplies.h"
#include "app/NumberText.h"
#include "control/AppSettings.h"
#include "control/AudioController.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace fadeloom {

struct HeadlessCommands::Command {
    std::string_view name;
    std::string_view arguments;  // As help shows them.
    std::size_t argumentCount;
    Reply (HeadlessCommands::*action)(Arguments);

    [[nodiscard]] std::string usage() const
    {
        return arguments.empty() ? std::string(name) : std::string(name).append(" ").append(arguments);
    }
};

std::span<const HeadlessCommands::Command> HeadlessCommands::commands()
{
    static constexpr std::array all = {
        Command{"volume", "APP 0.5", 2, &HeadlessCommands::setVolume},
        Command{"mute", "APP on|off", 2, &HeadlessCommands::setMuted},
        Command{"output", "APP UID|default", 2, &HeadlessCommands::setOutput},
        Command{"eq", "APP on|off", 2, &HeadlessCommands::setEqualizer},
        Command{"band", "APP 1 DB", 3, &HeadlessCommands::setBand},
        Command{"preamp", "APP DB", 2, &HeadlessCommands::setPreamp},
        Command{"preset", "APP NAME", 2, &HeadlessCommands::applyPreset},
        Command{"save-preset", "APP NAME", 2, &HeadlessCommands::savePreset},
        Command{"delete-preset", "NAME", 1, &HeadlessCommands::deletePreset},
        Command{"record", "APP start|stop", 2, &HeadlessCommands::record},
        Command{"reveal", "", 0, &HeadlessCommands::reveal},
        Command{"recordings", "PATH|default", 1, &HeadlessCommands::setRecordingsFolder},
        Command{"default", "UID", 1, &HeadlessCommands::setDefault},
        Command{"limit", "1|1.25|1.5|2", 1, &HeadlessCommands::setVolumeLimit},
        Command{"headroom", "on|off", 1, &HeadlessCommands::setHeadroom},
        Command{"calls", "on|off", 1, &HeadlessCommands::setCalls},
        Command{"call-level", "0.2", 1, &HeadlessCommands::setCallLevel},
        Command{"call-app", "APP on|off", 2, &HeadlessCommands::setCallApp},
        Command{"login", "on|off", 1, &HeadlessCommands::setLogin},
        Command{"theme", "system|light|dark", 1, &HeadlessCommands::setTheme},
        Command{"meters", "on|off", 1, &HeadlessCommands::setMeters},
        Command{"levels", "on|off", 1, &HeadlessCommands::watchLevels},
        Command{"list", "", 0, &HeadlessCommands::list},
        Command{"help", "", 0, &HeadlessCommands::help},
        Command{"quit", "", 0, &HeadlessCommands::quit},
    };
    return all;
}

HeadlessCommands::Reply HeadlessCommands::interpret(std::string_view line)
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

std::string HeadlessCommands::appText(const std::string& bundleID) const
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

HeadlessCommands::Reply HeadlessCommands::list(Arguments)
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

HeadlessCommands::Reply HeadlessCommands::help(Arguments)
{
    std::string text = "help";
    for (const auto& command : commands())
        text += "; " + command.usage();
    return ok(text);
}

HeadlessCommands::Reply HeadlessCommands::quit(Arguments)
{
    return {.text = "ok quit", .asksToQuit = true};
}

}  // namespace fadeloom
