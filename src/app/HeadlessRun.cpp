// SPDX-License-Identifier: MIT
#include "app/HeadlessRun.h"

#include "app/Console.h"
#include "commands/EventText.h"
#include "control/AppSettings.h"
#include "control/OutputChoice.h"
#include "platform/MainLoop.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace fadeloom {
namespace {

constexpr std::chrono::seconds tableInterval{1};

}  // namespace

HeadlessRun::HeadlessRun(const Platform& platform, Console& console, Options options)
    : console_(console)
    , text_(platform.text)
    , options_(std::move(options))
    , engineLog_(platform)
    , controller_(platform, engineLog_, options_.version)
    , events_(controller_, platform.mainLoop, [this](const Event& event) { print(event); })
    , commands_(controller_, platform.text)
    , watchers_(controller_, platform.mainLoop, platform.text)
{
    if (options_.terminalSize()) {
        controller_.levels().setWanted(true);
        tableTimer_ = platform.mainLoop.every(tableInterval, [this] { showTable(); });
    }
}

void HeadlessRun::takeLine(std::string_view line)
{
    const auto reply = commands_.interpret(line);
    if (!reply.text.empty())
        console_.print(reply.text);
    if (reply.asksToQuit)
        options_.quit();
}

ServedControl HeadlessRun::served(MainLoop& mainLoop)
{
    return {controller_, commands_, watchers_, mainLoop, text_, options_.version, options_.quit};
}

void HeadlessRun::shutdown()
{
    tableTimer_.reset();
    controller_.shutdown();
}

// Events caused by the command precede its reply.
void HeadlessRun::print(const Event& event)
{
    if (!std::holds_alternative<event::AppChanged>(event))
        console_.print(eventLine(event));
}

void HeadlessRun::showTable()
{
    const auto size = options_.terminalSize();
    if (!size)
        return;
    // One column is left free because some terminals wrap on the last one; two lines, for the user's input below.
    console_.showTable(statusTable(statusRows(), size->columns - 1, size->lines - 2));
}

std::vector<StatusRow> HeadlessRun::statusRows()
{
    const auto& levels = *controller_.levels().levels();
    const auto& settings = *controller_.state().settings;
    std::vector<StatusRow> rows;
    for (const auto& entry : *controller_.state().apps) {
        const auto app = appSettings(settings, entry.bundleID);
        StatusRow row = {
            .name = entry.name,
            .output = outputText(entry.bundleID),
            .volume = std::min(app.volume, settings.volumeLimit),
            .isMuted = app.muted,
        };
        const auto level = levels.find(entry.bundleID);
        if (level != levels.end() && controller_.tapOf(entry.bundleID))
            row.level = level->second;
        rows.push_back(std::move(row));
    }
    return rows;
}

std::string HeadlessRun::outputText(const std::string& bundleID) const
{
    if (controller_.isOutputMissing(bundleID))
        return "disconnected, muted";
    const auto uid = controller_.outputUID(bundleID);
    const auto* const device = uid ? findDevice(*controller_.state().devices, *uid) : nullptr;
    return device ? device->name : "no output";
}

}  // namespace fadeloom
