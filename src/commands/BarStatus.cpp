// SPDX-License-Identifier: MIT
#include "commands/BarStatus.h"

#include "commands/AppLookup.h"
#include "commands/JsonText.h"
#include "control/AppSettings.h"
#include "control/AudioController.h"
#include "control/OutputChoice.h"

#include <algorithm>
#include <cmath>

namespace fadeloom {
namespace {

/// Escapes text for the markup in a bar's tooltip.
std::string escaped(const std::string& text)
{
    std::string safe;
    for (const char byte : text)
        safe += byte == '&' ? "&amp;" : byte == '<' ? "&lt;" : byte == '>' ? "&gt;" : std::string(1, byte);
    return safe;
}

}  // namespace

std::expected<BarStatus, std::string> barStatus(
    const AudioController& controller, const Text& text, const std::optional<std::string>& word)
{
    const auto& state = controller.state();
    auto entry = std::ranges::find(*state.apps, true, &AppEntry::isPlaying);
    if (word) {
        const auto ids = appsNamed(controller, text, *word);
        if (!ids)
            return std::unexpected(ids.error());
        entry = ids->empty() ? state.apps->end()
                             : std::ranges::find(*state.apps, ids->front(), &AppEntry::bundleID);
    }
    if (entry == state.apps->end())
        return BarStatus{};
    const auto app = appSettings(*state.settings, entry->bundleID);
    const auto percent = std::to_string(std::lround(app.volume * 100)) + "%";
    return BarStatus{entry->bundleID, entry->name, app.muted ? "muted" : percent};
}

std::string waybarLine(const AudioController& controller, const BarStatus& status)
{
    if (status.id.empty())
        return jsonLine(FloatJson{
            {"text", ""}, {"tooltip", ""}, {"class", FloatJson::array({"none"})}, {"percentage", 0}});
    const auto& state = controller.state();
    const auto app = appSettings(*state.settings, status.id);
    const auto entry = std::ranges::find(*state.apps, status.id, &AppEntry::bundleID);
    const bool isPlaying = entry != state.apps->end() && entry->isPlaying;
    auto classes = FloatJson::array({isPlaying ? "playing" : "silent"});
    if (app.muted)
        classes.push_back("muted");
    if (controller.isOutputMissing(status.id))
        classes.push_back("missing");
    if (state.recordings->contains(status.id))
        classes.push_back("recording");
    const auto uid = controller.outputUID(status.id);
    const auto* const device = uid ? findDevice(*state.devices, *uid) : nullptr;
    const auto tooltip = escaped(status.name) + (device != nullptr ? " → " + escaped(device->name) : "");
    return jsonLine(FloatJson{{"text", status.text}, {"tooltip", tooltip}, {"class", std::move(classes)},
        {"percentage", std::lround(app.volume * 100)}});
}

}  // namespace fadeloom
