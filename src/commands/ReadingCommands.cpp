// SPDX-License-Identifier: MIT
// The commands that query the state, and that restore all settings.
#include "commands/BarStatus.h"
#include "commands/CommandReplies.h"
#include "commands/NumberText.h"
#include "commands/StateJson.h"
#include "control/AppSettings.h"
#include "control/AudioController.h"
#include "engine/EQPresets.h"
#include "settings/SettingsJson.h"

#include <utility>

namespace fadeloom {

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

std::string CommandInterpreter::appLines() const
{
    std::string text;
    for (const auto& entry : *controller_.state().apps) {
        text += "; app " + asWord(entry.bundleID) + " " + asWord(entry.name)
            + (entry.isPlaying ? " playing " : " silent ") + appText(entry.bundleID);
    }
    return text;
}

std::string CommandInterpreter::deviceLines() const
{
    std::string text;
    for (const auto& device : *controller_.state().devices) {
        text += "; device " + asWord(device.uid) + " " + asWord(device.name);
        if (device.uid == *controller_.state().defaultDeviceUID)
            text += " default";
    }
    return text;
}

CommandInterpreter::Reply CommandInterpreter::list(Arguments arguments)
{
    const auto& state = controller_.state();
    const auto listed = [](Listing listing, const std::string& text) {
        auto reply = ok("list " + text);
        reply.listing = listing;
        return reply;
    };
    const auto ownPresets = [&] {
        std::string text;
        for (const auto& preset : state.settings->userPresets)
            text += "; preset " + asWord(preset.name);
        return text;
    };
    const auto appCount = std::to_string(state.apps->size()) + " apps";
    if (arguments.empty())
        return listed(Listing::everything, appCount + appLines() + deviceLines() + ownPresets());
    if (arguments[0] == "apps")
        return listed(Listing::apps, appCount + appLines());
    if (arguments[0] == "outputs")
        return listed(Listing::outputs, std::to_string(state.devices->size()) + " outputs" + deviceLines());
    if (arguments[0] == "presets") {
        const auto& builtIn = EQPresets::all();
        std::string text = std::to_string(builtIn.size() + state.settings->userPresets.size()) + " presets";
        for (const auto& preset : builtIn)
            text += "; built-in " + asWord(preset.name);
        return listed(Listing::presets, text + ownPresets());
    }
    return error(Obstacle("say apps, outputs or presets, not " + asWord(arguments[0]), ReplyKind::usage));
}

// For a bar: the given app, otherwise the first playing one.
CommandInterpreter::Reply CommandInterpreter::status(Arguments arguments)
{
    const auto word = arguments.empty() ? std::nullopt : std::optional(arguments[0]);
    const auto status = barStatus(controller_, text_, word);
    if (!status)
        return unknown(status.error());
    auto reply = ok("status" + (status->id.empty() ? "" : " " + asWord(status->name) + " " + status->text));
    reply.apps = status->id.empty() ? std::vector<std::string>() : std::vector{status->id};
    return reply;
}

CommandInterpreter::Reply CommandInterpreter::exportSettings(Arguments)
{
    return ok("export " + settingsLine(controller_));
}

CommandInterpreter::Reply CommandInterpreter::restoreSettings(Arguments arguments)
{
    auto settings = decodeSettings(arguments[0], defaultCallApps(controller_.callApps()));
    if (!settings)
        return error("these are no settings: " + settings.error().description);
    controller_.setSettings(std::move(*settings));
    return ok("restore");
}

}  // namespace fadeloom
