// SPDX-License-Identifier: MIT
#include "commands/Watch.h"

#include "commands/AppLookup.h"
#include "commands/BarStatus.h"
#include "commands/EventText.h"
#include "commands/PrintableText.h"
#include "commands/StateJson.h"
#include "control/AudioController.h"

#include <algorithm>
#include <utility>

namespace fadeloom {

std::expected<WatchRequest, std::string> WatchRequest::parse(std::span<const std::string> words)
{
    using enum Format;
    WatchRequest request;
    if (words.empty())
        return std::unexpected("say in which form");
    if (words[0] == "json")
        request.format = json;
    else if (words[0] == "waybar")
        request.format = waybar;
    else if (words[0] != "text")
        return std::unexpected("say text, json or waybar, not " + asWord(words[0]));
    words = words.subspan(1);
    if (!words.empty() && (words[0] == "apps" || words[0] == "levels")) {
        request.wantsLevels = words[0] == "levels";
        words = words.subspan(1);
    }
    if (!words.empty())
        request.app = words[0];
    if (words.size() > 1 || (request.wantsLevels && request.format == waybar))
        return std::unexpected("usage: watch [apps|levels] [APP]");
    return request;
}

Watch::Watch(
    AudioController& controller, MainLoop& mainLoop, const Text& text, WatchRequest request, Send send)
    : controller_(controller)
    , text_(text)
    , request_(std::move(request))
    , send_(std::move(send))
{
    if (request_.wantsLevels) {
        levelsWanted_ = controller_.levels().want();
        levels_ = controller_.levels().levels().whenAssigned([this] { sendLevels(); });
        return;
    }
    if (request_.format == WatchRequest::Format::json)
        send_(stateEventJson(controller_));
    events_.emplace(controller_, mainLoop, [this](const Event& event) { deliver(event); });
    isBeginning_ = false;
    if (request_.format == WatchRequest::Format::waybar)
        sendBarStatus();
}

void Watch::end()
{
    events_.reset();
    levels_.reset();
    using enum WatchRequest::Format;
    send_(request_.format == waybar   ? waybarLine(controller_, {})
            : request_.format == json ? R"({"event":"end"})"
                                      : "end");
}

bool Watch::isAbout(const std::string& id) const
{
    if (!request_.app)
        return true;
    const auto ids = appsNamed(controller_, text_, *request_.app);
    return ids && std::ranges::find(*ids, id) != ids->end();
}

void Watch::deliver(const Event& event)
{
    using enum WatchRequest::Format;
    if (request_.format == waybar)
        return isBeginning_ ? void() : sendBarStatus();
    if (request_.format == json && isBeginning_)
        return;  // Already contained in the state.
    if (request_.isSandboxed && std::holds_alternative<event::RecordingSaved>(event))
        return;
    const auto app = appOf(event);
    if (app ? !isAbout(*app) : request_.app.has_value())
        return;
    send_(request_.format == json ? eventJson(event) : eventLine(event));
}

void Watch::sendLevels()
{
    event::Levels levels;
    for (const auto& [id, position] : *controller_.levels().levels()) {
        if (isAbout(id))
            levels.positions.emplace(id, position);
    }
    const bool isJson = request_.format == WatchRequest::Format::json;
    auto line = isJson ? eventJson(levels) : eventLine(levels);
    if (line == last_)
        return;
    last_ = std::move(line);
    send_(last_);
}

void Watch::sendBarStatus()
{
    // An unknown app may still appear: the bar stays empty until then.
    const auto status = barStatus(controller_, text_, request_.app);
    auto line = waybarLine(controller_, status.value_or(BarStatus()));
    if (line == last_)
        return;
    last_ = std::move(line);
    send_(last_);
}

}  // namespace fadeloom
