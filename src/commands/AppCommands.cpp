// SPDX-License-Identifier: MIT
// The headless commands about a single app.
#include "commands/AppLookup.h"
#include "commands/CommandReplies.h"
#include "commands/NumberText.h"
#include "commands/VolumeWord.h"
#include "control/AppSettings.h"
#include "control/AudioController.h"
#include "control/OutputChoice.h"
#include "engine/EQPresets.h"
#include "platform/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <map>
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

// Names differ in more than case, so there is at most one.
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

template <typename Change, typename Value>
Reply CommandInterpreter::changeApps(
    std::string_view command, Arguments arguments, Change change, Value value)
{
    const auto ids = appsNamed(controller_, text_, arguments[0]);
    if (!ids)
        return unknown(ids.error());
    std::map<std::string, AppAudioSettings> changed;
    for (const auto& id : *ids) {
        auto& app = changed.emplace(id, appSettings(*controller_.state().settings, id)).first->second;
        if (const Problem problem = arguments.size() > 1 ? change(id, app) : std::nullopt)
            return error(*problem);
    }
    std::string text;
    for (const auto& [id, settings] : changed) {
        if (arguments.size() > 1)
            controller_.editApp(id, [&](AppAudioSettings& app) { app = settings; });
        text += (text.empty() ? "" : "; ") + std::string(command) + " " + asWord(id) + " " + value(settings);
    }
    auto reply = ok(text.empty() ? std::string(command) : text);
    reply.apps = *ids;
    return reply;
}

Reply CommandInterpreter::setVolume(Arguments arguments)
{
    const auto limit = controller_.state().settings->volumeLimit;
    return changeApps(
        "volume", arguments,
        [&](const std::string&, AppAudioSettings& app) -> Problem {
            const auto word = VolumeWord::parse(arguments[1]);
            if (!word)
                return Obstacle(word.error(), ReplyKind::usage);
            const float volume = word->from(std::min(app.volume, limit), limit);
            if (volume > limit)
                return "the volume is a number from 0 to " + numberText(limit) + ", not "
                    + asWord(arguments[1]);
            app.volume = volume;
            return std::nullopt;
        },
        [](const AppAudioSettings& app) { return numberText(app.volume); });
}

Reply CommandInterpreter::setMuted(Arguments arguments)
{
    return changeApps(
        "mute", arguments, [&](const auto&, auto& app) { return setSwitch(app.muted, arguments[1]); },
        [](const auto& app) { return app.muted ? "on" : "off"; });
}

// The device next to the app's current one, cyclically.
std::optional<std::string> CommandInterpreter::neighbourOf(const std::string& bundleID, bool isNext) const
{
    const auto& devices = *controller_.state().devices;
    if (devices.empty())
        return std::nullopt;
    const auto present = controller_.outputUID(bundleID);
    const auto found = std::ranges::find(devices, present.value_or(""), &OutputDevice::uid);
    const auto count = devices.size();
    const auto place = static_cast<std::size_t>(found - devices.begin()) % count;
    return devices[(place + (isNext ? 1 : count - 1)) % count].uid;
}

Reply CommandInterpreter::setOutput(Arguments arguments)
{
    return changeApps(
        "output", arguments,
        [&](const std::string& id, AppAudioSettings& app) -> Problem {
            const auto& word = arguments[1];
            const auto& devices = *controller_.state().devices;
            if (word == "default") {
                app.outputUID.reset();
            } else if (word == "next" || word == "previous") {
                app.outputUID = neighbourOf(id, word == "next");
            } else if (findDevice(devices, word)) {
                app.outputUID = word;
            } else if (std::ranges::count(devices, word, &OutputDevice::name) == 1) {
                app.outputUID = std::ranges::find(devices, word, &OutputDevice::name)->uid;
            } else {
                return Obstacle("unknown device " + asWord(word), ReplyKind::unknownName);
            }
            return std::nullopt;
        },
        [](const AppAudioSettings& app) { return app.outputUID ? asWord(*app.outputUID) : "default"; });
}

Reply CommandInterpreter::setEqualizer(Arguments arguments)
{
    return changeApps(
        "eq", arguments, [&](const auto&, auto& app) { return setSwitch(app.eqEnabled, arguments[1]); },
        [](const auto& app) { return app.eqEnabled ? "on" : "off"; });
}

Reply CommandInterpreter::setBand(Arguments arguments)
{
    std::size_t band = 0;
    const auto& word = arguments[1];
    const auto end = std::from_chars(word.data(), word.data() + word.size(), band).ptr;
    if (end != word.data() + word.size() || band < 1 || band > EQCoefficients{}.size())
        return error("the bands are 1 to 10, not " + asWord(word));
    return changeApps(
        "band", arguments,
        [&](const std::string&, AppAudioSettings& app) {
            app.eqPresetName.reset();
            return setDecibels(app.eqGains[band - 1], arguments[2]);
        },
        [&](const AppAudioSettings& app) { return word + " " + numberText(app.eqGains[band - 1]); });
}

Reply CommandInterpreter::setPreamp(Arguments arguments)
{
    return changeApps(
        "preamp", arguments, [&](const auto&, auto& app) { return setDecibels(app.eqPreamp, arguments[1]); },
        [](const auto& app) { return numberText(app.eqPreamp); });
}

Reply CommandInterpreter::applyPreset(Arguments arguments)
{
    const auto ids = appsNamed(controller_, text_, arguments[0]);
    if (!ids)
        return unknown(ids.error());
    const auto value = [](const AppAudioSettings& app) { return asWord(app.eqPresetName.value_or("none")); };
    if (arguments.size() == 1)
        return changeApps("preset", arguments, [](const auto&, auto&) { return Problem(); }, value);
    const auto* const found = findPreset(*controller_.state().settings, text_, arguments[1]);
    if (!found)
        return unknown("unknown preset " + asWord(arguments[1]));
    const EQPreset preset = *found;  // Copied, because the list may change with the settings.
    for (const auto& id : *ids)
        controller_.applyPreset(preset, id);
    return changeApps("preset", arguments.first(1), [](const auto&, auto&) { return Problem(); }, value);
}

Reply CommandInterpreter::savePreset(Arguments arguments)
{
    const auto id = findApp(controller_.state(), text_, arguments[0]);
    if (!id)
        return unknown(id.error());
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
        return unknown(id.error());
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
