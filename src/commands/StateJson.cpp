// SPDX-License-Identifier: MIT
#include "commands/StateJson.h"

#include "commands/JsonText.h"
#include "control/AppSettings.h"
#include "control/AudioController.h"
#include "control/CallDucking.h"
#include "engine/EQPresets.h"
#include "settings/SettingsJson.h"

#include <algorithm>

namespace fadeloom {
namespace {

FloatJson orNull(const std::optional<std::string>& text)
{
    return text ? FloatJson(*text) : FloatJson();
}

FloatJson appJson(const AudioController& controller, const std::string& id)
{
    const auto& state = controller.state();
    const auto& settings = *state.settings;
    auto app = appSettingsJson(appSettings(settings, id));
    const auto entry = std::ranges::find(*state.apps, id, &AppEntry::bundleID);
    const bool isListed = entry != state.apps->end();
    const auto known = settings.knownAppNames.find(id);
    app["id"] = id;
    app["name"] = isListed ? entry->name : known == settings.knownAppNames.end() ? id : known->second;
    app["playing"] = isListed && entry->isPlaying;
    app["microphone"] = isListed && entry->isUsingMic;
    app["output"] = isListed ? orNull(controller.outputUID(id)) : FloatJson();
    app["outputMissing"] = controller.isOutputMissing(id);
    app["recording"] = state.recordings->contains(id);
    app["ducked"] = isListed && duckFactor(settings.focus, *state.callApp, entry->callIDs) < 1;
    return app;
}

FloatJson appList(const AudioController& controller)
{
    auto list = FloatJson::array();
    for (const auto& entry : *controller.state().apps)
        list.push_back(appJson(controller, entry.bundleID));
    return list;
}

FloatJson outputList(const AudioController& controller)
{
    const auto& state = controller.state();
    auto list = FloatJson::array();
    for (const auto& device : *state.devices)
        list.push_back(
            {{"uid", device.uid}, {"name", device.name}, {"default", *state.defaultDeviceUID == device.uid}});
    return list;
}

FloatJson presetList(const AudioController& controller)
{
    auto list = FloatJson::array();
    for (const auto& preset : EQPresets::all())
        list.push_back({{"name", preset.name}, {"gains", preset.gains}, {"own", false}});
    for (const auto& preset : controller.state().settings->userPresets)
        list.push_back({{"name", preset.name}, {"gains", preset.gains}, {"own", true}});
    return list;
}

FloatJson everything(const AudioController& controller)
{
    const auto& state = controller.state();
    return {
        {"default", orNull(*state.defaultDeviceUID)},
        {"limit", state.settings->volumeLimit},
        {"callApp", orNull(*state.callApp)},
        {"apps", appList(controller)},
        {"outputs", outputList(controller)},
        {"presets", presetList(controller)},
    };
}

}  // namespace

std::string listJson(const AudioController& controller, Listing listing)
{
    switch (listing) {
    case Listing::everything:
        return jsonLine(everything(controller));
    case Listing::apps:
        return jsonLine(FloatJson{{"apps", appList(controller)}});
    case Listing::outputs:
        return jsonLine(FloatJson{{"outputs", outputList(controller)}});
    case Listing::presets:
        return jsonLine(FloatJson{{"presets", presetList(controller)}});
    }
    return {};
}

std::string appsJson(const AudioController& controller, std::span<const std::string> ids)
{
    auto list = FloatJson::array();
    for (const auto& id : ids)
        list.push_back(appJson(controller, id));
    return jsonLine(FloatJson{{"apps", std::move(list)}});
}

std::string stateEventJson(const AudioController& controller)
{
    auto state = everything(controller);
    state["event"] = "state";
    return jsonLine(state);
}

std::string settingsLine(const AudioController& controller)
{
    const auto settings = FloatJson::parse(encodeSettings(*controller.state().settings));
    return settings.dump(-1, ' ', true);
}

}  // namespace fadeloom
