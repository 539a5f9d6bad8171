// SPDX-License-Identifier: MIT
// The headless commands about one app.
#include "commands/AppLookup.h"
#include "commands/CommandReplies.h"
#include "commands/NumberText.h"
#include "control/AppSettings.h"
#include "control/AudioController.h"
#include "control/OutputChoice.h"
#include "engine/EQPresets.h"
#include "platform/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace fadeloom {
namespace {

using Reply = CommandInterpreter::Reply;

Problem setDecibels(float& value, const std::string& word)
{
    constexpr float range = 12;
    const auto number = numberOf(word);
    if (!number || *number < -range || *number > range)
        return "say a number of decibels from -12 to 12, not " + asWord(word);
    value = *number;
    return std::nullopt;
}

// Names differ in more than letter case, so there is one at most.
const EQPreset* findPreset(const SettingsData& settings, const Text& text, const std::string& name)
{
    for (const auto* const presets : {&EQPresets::all(), &settings.userPresets}) {
        const auto found = std::ranges::find_if(
            *presets, [&](const EQPreset& preset) { return text.equalIgnoringCase(preset.name, name); });
        if (found != presets->end())
            return &*found;
    }
    return nullptr;
}

}  // namespace

template <typename Change>
Reply CommandInterpreter::changeApp(std::string_view command, Arguments arguments, Change change)
{
    const auto id = findApp(controller_.state(), text_, arguments[0]);
    if (!id)
        return error(id.error());
    auto changed = appSettings(*controller_.state().settings, *id);
    if (const Problem problem = change(changed))
        return error(*problem);
    controller_.editApp(*id, [&](AppAudioSettings& app) { app = changed; });
    return done(std::string(command) + " " + asWord(*id), arguments.subspan(1));
}

Reply CommandInterpreter::setVolume(Arguments arguments)
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

Reply CommandInterpreter::setMuted(Arguments arguments)
{
    return changeApp("mute", arguments, [&](auto& app) { return setSwitch(app.muted, arguments[1]); });
}

Reply CommandInterpreter::setOutput(Arguments arguments)
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

Reply CommandInterpreter::setEqualizer(Arguments arguments)
{
    return changeApp("eq", arguments, [&](auto& app) { return setSwitch(app.eqEnabled, arguments[1]); });
}

Reply CommandInterpreter::setBand(Arguments arguments)
{
    return changeApp("band", arguments, [&](AppAudioSettings& app) -> Problem {
        std::size_t band = 0;
        const auto& word = arguments[1];
        const auto end = std::from_chars(word.data(), word.data() + word.size(), band).ptr;
        if (end != word.data() + word.size() || band < 1 || band > app.eqGains.size())
            return "the bands are 1 to 10, not " + asWord(word);
        auto problem = setDecibels(app.eqGains[band - 1], arguments[2]);
        app.eqPresetName.reset();
        return problem;
    });
}

Reply CommandInterpreter::setPreamp(Arguments arguments)
{
    return changeApp("preamp", arguments, [&](auto& app) { return setDecibels(app.eqPreamp, arguments[1]); });
}

Reply CommandInterpreter::applyPreset(Arguments arguments)
{
    const auto id = findApp(controller_.state(), text_, arguments[0]);
    if (!id)
        return error(id.error());
    const auto* const found = findPreset(*controller_.state().settings, text_, arguments[1]);
    if (!found)
        return error("unknown preset " + asWord(arguments[1]));
    const EQPreset preset = *found;  // The settings change on the way.
    controller_.applyPreset(preset, *id);
    return done("preset", std::array{*id, preset.name});
}

Reply CommandInterpreter::savePreset(Arguments arguments)
{
    const auto id = findApp(controller_.state(), text_, arguments[0]);
    if (!id)
        return error(id.error());
    const auto name = text_.trimmed(arguments[1]);
    if (name.empty())
        return error("a preset needs a name");
    if (const auto saved = controller_.saveUserPreset(name, *id); !saved)
        return error(englishText(saved.error()));
    return done("save-preset", std::array{*id, name});
}

Reply CommandInterpreter::record(Arguments arguments)
{
    const auto id = findApp(controller_.state(), text_, arguments[0]);
    if (!id)
        return error(id.error());
    const auto isRecorded = [&] { return controller_.state().recordings->contains(*id); };
    if (arguments[1] == "start") {
        if (isRecorded())
            return error(asWord(*id) + " is being recorded already");
        if (const auto started = controller_.startRecording(*id); !started)
            return error(englishText(started.error()));
    } else if (arguments[1] == "stop") {
        if (!isRecorded())
            return error(asWord(*id) + " is not being recorded");
        controller_.stopRecording(*id);
    } else {
        return error("say start or stop, not " + asWord(arguments[1]));
    }
    return done("record", std::array{*id, arguments[1]});
}

}  // namespace fadeloom
