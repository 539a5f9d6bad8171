// SPDX-License-Identifier: MIT
#include "commands/EventText.h"

#include "commands/JsonText.h"
#include "commands/NumberText.h"
#include "commands/PrintableText.h"

namespace fadeloom {
namespace {

std::string textOrNone(const std::optional<std::string>& text)
{
    return text ? asWord(*text) : "none";
}

FloatJson orNull(const std::optional<std::string>& text)
{
    return text ? FloatJson(*text) : FloatJson();
}

struct Line {
    static std::string about(const char* what, const std::string& word)
    {
        return std::string(what) + " " + asWord(word);
    }

    std::string operator()(const event::AppAppeared& app) const
    {
        return about("app appeared", app.id) + " " + asWord(app.name);
    }
    std::string operator()(const event::AppDisappeared& app) const
    {
        return about("app disappeared", app.id);
    }
    std::string operator()(const event::AppPlaying& app) const
    {
        return about(app.isPlaying ? "app playing" : "app silent", app.id);
    }
    std::string operator()(const event::AppOutput& app) const
    {
        return about("app output", app.id) + " " + textOrNone(app.uid);
    }
    std::string operator()(const event::AppChanged& app) const
    {
        auto text = about("app changed", app.id);
        const auto add = [&](const auto& before, const auto& now, const char* name,
                             const std::string& value) {
            if (before != now)
                text += std::string(" ") + name + " " + value;
        };
        const auto& [id, before, now] = app;
        add(before.volume, now.volume, "volume", numberText(now.volume));
        add(before.muted, now.muted, "mute", now.muted ? "on" : "off");
        add(before.eqEnabled, now.eqEnabled, "eq", now.eqEnabled ? "on" : "off");
        add(before.eqPresetName, now.eqPresetName, "preset", textOrNone(now.eqPresetName));
        add(before.eqPreamp, now.eqPreamp, "preamp", numberText(now.eqPreamp));
        for (std::size_t band = 0; band < now.eqGains.size(); ++band)
            add(before.eqGains[band], now.eqGains[band], "band",
                std::to_string(band + 1) + " " + numberText(now.eqGains[band]));
        add(before.outputUID, now.outputUID, "output", now.outputUID ? asWord(*now.outputUID) : "default");
        return text;
    }
    std::string operator()(const event::OutputAdded& output) const
    {
        return about("device added", output.uid) + " " + asWord(output.name);
    }
    std::string operator()(const event::OutputRemoved& output) const
    {
        return about("device removed", output.uid) + " " + asWord(output.name);
    }
    std::string operator()(const event::OutputRenamed& output) const
    {
        return about("device renamed", output.uid) + " " + asWord(output.name);
    }
    std::string operator()(const event::DefaultOutput& output) const
    {
        return "default " + textOrNone(output.uid);
    }
    std::string operator()(const event::Call& call) const { return "call " + textOrNone(call.id); }
    std::string operator()(const event::CallOffered& offer) const
    {
        return about("call-app offered", offer.id);
    }
    std::string operator()(const event::Recording& recording) const
    {
        return about(recording.isRunning ? "recording started" : "recording stopped", recording.id);
    }
    std::string operator()(const event::RecordingSaved& recording) const
    {
        return about("recording saved", recording.file.string());
    }
    std::string operator()(const event::Permission& permission) const
    {
        return std::string("permission ").append(AudioPermission::name(permission.state));
    }
    std::string operator()(const event::Message& message) const { return about("message", message.text); }
    std::string operator()(const event::Levels& levels) const
    {
        std::string text = "levels";
        for (const auto& [id, position] : levels.positions)
            text += " " + asWord(id) + " " + numberText(position);
        return text;
    }
};

struct Object {
    FloatJson operator()(const event::AppAppeared& app) const
    {
        return {{"event", "appeared"}, {"id", app.id}, {"name", app.name}};
    }
    FloatJson operator()(const event::AppDisappeared& app) const
    {
        return {{"event", "disappeared"}, {"id", app.id}};
    }
    FloatJson operator()(const event::AppPlaying& app) const
    {
        return {{"event", "app"}, {"id", app.id}, {"changed", {{"playing", app.isPlaying}}}};
    }
    FloatJson operator()(const event::AppOutput& app) const
    {
        return {{"event", "app"}, {"id", app.id}, {"changed", {{"output", orNull(app.uid)}}}};
    }
    FloatJson operator()(const event::AppChanged& app) const
    {
        auto changed = FloatJson::object();
        const auto now = appSettingsJson(app.now);
        const auto before = appSettingsJson(app.before);
        for (const auto& [key, value] : now.items()) {
            if (before.at(key) != value)
                changed[key] = value;
        }
        return {{"event", "app"}, {"id", app.id}, {"changed", changed}};
    }
    FloatJson operator()(const event::OutputAdded& output) const
    {
        return {{"event", "output-added"}, {"uid", output.uid}, {"name", output.name}};
    }
    FloatJson operator()(const event::OutputRemoved& output) const
    {
        return {{"event", "output-removed"}, {"uid", output.uid}, {"name", output.name}};
    }
    FloatJson operator()(const event::OutputRenamed& output) const
    {
        return {{"event", "output-renamed"}, {"uid", output.uid}, {"name", output.name}};
    }
    FloatJson operator()(const event::DefaultOutput& output) const
    {
        return {{"event", "default"}, {"uid", orNull(output.uid)}};
    }
    FloatJson operator()(const event::Call& call) const
    {
        return {{"event", "call"}, {"id", orNull(call.id)}};
    }
    FloatJson operator()(const event::CallOffered& offer) const
    {
        return {{"event", "call-offered"}, {"id", offer.id}};
    }
    FloatJson operator()(const event::Recording& recording) const
    {
        return {{"event", "recording"}, {"id", recording.id}, {"running", recording.isRunning}};
    }
    FloatJson operator()(const event::RecordingSaved& recording) const
    {
        return {{"event", "recording-saved"}, {"file", recording.file.string()}};
    }
    FloatJson operator()(const event::Permission& permission) const
    {
        return {{"event", "permission"}, {"state", std::string(AudioPermission::name(permission.state))}};
    }
    FloatJson operator()(const event::Message& message) const
    {
        return {{"event", "message"}, {"text", message.text}};
    }
    FloatJson operator()(const event::Levels& levels) const
    {
        return {{"event", "levels"}, {"levels", levels.positions}};
    }
};

}  // namespace

std::string eventLine(const Event& event)
{
    return std::visit(Line(), event);
}

std::string eventJson(const Event& event)
{
    return jsonLine(std::visit(Object(), event));
}

}  // namespace fadeloom
