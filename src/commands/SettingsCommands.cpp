// SPDX-License-Identifier: MIT
// The headless commands that do not concern a single app.
#include "commands/AppLookup.h"
#include "commands/CommandReplies.h"
#include "commands/NumberText.h"
#include "control/AudioController.h"
#include "control/OutputChoice.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace fadeloom {
namespace {

using Reply = CommandInterpreter::Reply;

}  // namespace

template <typename Change>
Reply CommandInterpreter::changeSettings(std::string_view command, Arguments arguments, Change change)
{
    auto settings = *controller_.state().settings;
    if (const Problem problem = change(settings))
        return error(*problem);
    controller_.setSettings(std::move(settings));
    return done(command, arguments);
}

Reply CommandInterpreter::deletePreset(Arguments arguments)
{
    const auto& presets = controller_.state().settings->userPresets;
    const auto found = std::ranges::find(presets, arguments[0], &EQPreset::name);
    if (found == presets.end())
        return unknown("no preset of yours is called " + asWord(arguments[0]));
    controller_.deleteUserPreset(EQPreset(*found));
    return done("delete-preset", arguments);
}

Reply CommandInterpreter::setDefault(Arguments arguments)
{
    const auto* const found = findDevice(*controller_.state().devices, arguments[0]);
    if (!found)
        return unknown("unknown device " + asWord(arguments[0]));
    // Copied, because the list may change while the system sets the default.
    const OutputDevice device = *found;
    if (!controller_.setSystemOutput(device))
        return error("the system did not accept " + asWord(device.uid) + " as its default output");
    return done("default", arguments);
}

Reply CommandInterpreter::setVolumeLimit(Arguments arguments)
{
    return changeSettings("limit", arguments, [&](SettingsData& settings) -> Problem {
        const auto limit = numberOf(arguments[0]);
        if (!limit || std::ranges::find(volumeLimits, *limit) == volumeLimits.end())
            return "the limit is 1, 1.25, 1.5 or 2, not " + asWord(arguments[0]);
        settings.volumeLimit = *limit;
        return std::nullopt;
    });
}

Reply CommandInterpreter::setHeadroom(Arguments arguments)
{
    return changeSettings("headroom", arguments,
        [&](auto& settings) { return setSwitch(settings.eqAutoHeadroom, arguments[0]); });
}

Reply CommandInterpreter::setCalls(Arguments arguments)
{
    return changeSettings(
        "calls", arguments, [&](auto& settings) { return setSwitch(settings.focus.enabled, arguments[0]); });
}

Reply CommandInterpreter::setCallLevel(Arguments arguments)
{
    return changeSettings("call-level", arguments, [&](SettingsData& settings) -> Problem {
        const auto level = numberOf(arguments[0]);
        if (!level || *level < 0 || *level > 1)
            return "the level is a number from 0 to 1, not " + asWord(arguments[0]);
        settings.focus.duckLevel = *level;
        return std::nullopt;
    });
}

// An unknown app is taken literally as a bundle identifier: it may appear later.
Reply CommandInterpreter::setCallApp(Arguments arguments)
{
    const auto id = findApp(controller_.state(), text_, arguments[0]).value_or(arguments[0]);
    if (id.empty())
        return error("unknown app " + asWord(id));
    bool isWanted = false;
    if (const auto problem = setSwitch(isWanted, arguments[1]))
        return error(*problem);
    if (isWanted)
        controller_.addCallApp(id);
    else
        controller_.removeCallApp(id);
    return done("call-app", arguments);
}

Reply CommandInterpreter::setRecordingsFolder(Arguments arguments)
{
    return changeSettings("recordings", arguments, [&](SettingsData& settings) -> Problem {
        if (arguments[0] == "default")
            settings.recordingsFolder.reset();
        else if (std::filesystem::path(arguments[0]).is_absolute())
            settings.recordingsFolder = arguments[0];
        else
            return "say a path from the root, not " + asWord(arguments[0]);
        return std::nullopt;
    });
}

Reply CommandInterpreter::setLogin(Arguments arguments)
{
    bool isWanted = false;
    if (const auto problem = setSwitch(isWanted, arguments[0]))
        return error(*problem);
    if (const auto changed = controller_.setLaunchAtLogin(isWanted); !changed)
        return error(englishText(changed.error()));
    if (*controller_.state().launchAtLogin != isWanted)
        return error("the system asks for your approval first");
    return done("login", arguments);
}

Reply CommandInterpreter::setTheme(Arguments arguments)
{
    return changeSettings("theme", arguments, [&](SettingsData& settings) -> Problem {
        const auto theme = themeOf(arguments[0]);
        if (!theme)
            return "say system, light or dark, not " + asWord(arguments[0]);
        settings.appearance.theme = *theme;
        return std::nullopt;
    });
}

Reply CommandInterpreter::setMeters(Arguments arguments)
{
    return changeSettings("meters", arguments,
        [&](auto& settings) { return setSwitch(settings.appearance.levelMeters, arguments[0]); });
}

Reply CommandInterpreter::watchLevels(Arguments arguments)
{
    bool isWanted = false;
    if (const auto problem = setSwitch(isWanted, arguments[0]))
        return error(*problem);
    controller_.levels().setWanted(isWanted);
    return done("levels", arguments);
}

Reply CommandInterpreter::reveal(Arguments)
{
    if (!*controller_.state().lastRecording)
        return error("nothing was recorded yet");
    controller_.revealLastRecording();
    return done("reveal", {});
}

}  // namespace fadeloom
