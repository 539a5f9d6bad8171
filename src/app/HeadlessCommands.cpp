// SPDX-License-Identifier: MIT
#include "app/HeadlessCommands.h"

#include "app/AppLookup.h"
#include "app/LineWords.h"
#include "app/NumberText.h"
#include "app/PrintableText.h"
#include "control/AppSettings.h"
#include "control/AudioController.h"
#include "control/OutputChoice.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <utility>

namespace fadeloom {
namespace {

using Reply = HeadlessCommands::Reply;
using Problem = std::optional<std::string>;

Reply ok(const std::string& text)
{
    return {"ok " + text};
}

Reply error(const std::string& text)
{
    return {"error " + text};
}

std::optional<bool> switchOf(const std::string& word)
{
    if (word == "on" || word == "off")
        return word == "on";
    return std::nullopt;
}

Problem setSwitch(bool& value, const std::string& word)
{
    const auto isOn = switchOf(word);
    if (!isOn)
        return "say on or off, not " + asWord(word);
    value = *isOn;
    return std::nullopt;
}

}  // namespace

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
        Command{"eq", "APP on|off", 2, &HeadlessCommands::setEqualizer},
        Command{"output", "APP UID|default", 2, &HeadlessCommands::setOutput},
        Command{"default", "UID", 1, &HeadlessCommands::setDefault},
        Command{"list", "", 0, &HeadlessCommands::list},
        Command{"help", "", 0, &HeadlessCommands::help},
        Command{"quit", "", 0, &HeadlessCommands::quit},
    };
    return all;
}

Reply HeadlessCommands::interpret(std::string_view line)
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

template <typename Change>
Reply HeadlessCommands::changeApp(std::string_view command, Arguments arguments, Change change)
{
    const auto id = findApp(controller_.state(), text_, arguments[0]);
    if (!id)
        return error(id.error());
    auto settings = *controller_.state().settings;
    auto app = appSettings(settings, *id);
    if (const Problem problem = change(app))
        return error(*problem);
    storeAppSettings(settings, *id, app);
    controller_.setSettings(std::move(settings));
    return ok(std::string(command) + " " + asWord(*id) + " " + asWord(arguments[1]));
}

Reply HeadlessCommands::setVolume(Arguments arguments)
{
    return changeApp("volume", arguments, [&](AppAudioSettings& app) -> Problem {
        const auto volume = numberOf(arguments[1]);
        const auto limit = controller_.state().settings->volumeLimit;
        if (!volume || *volume < 0 || *volume > limit)
            return "the volume is a number from 0 to " + numberText(limit) + ", not " + asWord(arguments[1]);
        app.volume = *volume;
        return std::nullopt;
    });
}

Reply HeadlessCommands::setMuted(Arguments arguments)
{
    return changeApp("mute", arguments, [&](auto& app) { return setSwitch(app.muted, arguments[1]); });
}

Reply HeadlessCommands::setEqualizer(Arguments arguments)
{
    return changeApp("eq", arguments, [&](auto& app) { return setSwitch(app.eqEnabled, arguments[1]); });
}

Reply HeadlessCommands::setOutput(Arguments arguments)
{
    return changeApp("output", arguments, [&](AppAudioSettings& app) -> Problem {
        const auto& uid = arguments[1];
        if (uid == "default")
            app.outputUID.reset();
        else if (findDevice(*controller_.state().devices, uid))
            app.outputUID = uid;
        else
            return "unknown device " + asWord(uid);
        return std::nullopt;
    });
}

Reply HeadlessCommands::setDefault(Arguments arguments)
{
    const auto* const found = findDevice(*controller_.state().devices, arguments[0]);
    if (!found)
        return error("unknown device " + asWord(arguments[0]));
    const OutputDevice device = *found;  // The list may change while the system takes it.
    if (!controller_.setSystemOutput(device))
        return error("the system did not accept " + asWord(device.uid) + " as its default output");
    return ok("default " + asWord(device.uid));
}

std::string HeadlessCommands::appText(const std::string& bundleID) const
{
    const auto app = appSettings(*controller_.state().settings, bundleID);
    auto text = "volume " + numberText(app.volume) + (app.muted ? " mute on" : " mute off")
        + (app.eqEnabled ? " eq on" : " eq off") + " output "
        + (app.outputUID ? asWord(*app.outputUID) : "default");
    if (controller_.isOutputMissing(bundleID))
        text += " missing";
    return text;
}

Reply HeadlessCommands::list(Arguments)
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
    return ok(text);
}

Reply HeadlessCommands::help(Arguments)
{
    std::string text = "help";
    for (const auto& command : commands())
        text += "; " + command.usage();
    return ok(text);
}

Reply HeadlessCommands::quit(Arguments)
{
    return {.text = "ok quit", .asksToQuit = true};
}

}  // namespace fadeloom
