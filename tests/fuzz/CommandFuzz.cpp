// SPDX-License-Identifier: MIT
// Arbitrary bytes as commands to a controller on the simulated platform: each gets one line of reply that a terminal
// can display, and the resulting settings are within their ranges.
#include "commands/CommandInterpreter.h"
#include "commands/PrintableText.h"
#include "control/AudioController.h"
#include "log/EngineLog.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "tests/fuzz/Require.h"
#include "tests/support/TemporaryFolder.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

using namespace fadeloom;

namespace {

struct Stage {
    Stage()
    {
        world.plug({.uid = "speakers", .name = "Desk Speakers"});
        world.plug({.uid = "headphones", .name = "Headphones"});
        world.startPlaying(world.launchApp("Player"));
        world.startPlaying(world.launchApp("Radio"));
        world.runPosted();
    }

    TemporaryFolder folder;
    SimulatedPlatform world{folder.path()};
    EngineLog engineLog{world.systemLog(), world.platform().logQueue, folder.path()};
    AudioController controller{world.platform(), engineLog, "1.2.3"};
    CommandInterpreter commands{controller, world.platform().text};
};

void checkRanges(const SettingsData& settings)
{
    for (const auto& [id, app] : settings.apps) {
        require(app.volume >= 0 && app.volume <= settings.volumeLimit, "a volume is within the limit");
        require(app.eqPreamp >= -12 && app.eqPreamp <= 12, "a preamp is in its range");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static Stage stage;
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    while (!rest.empty()) {
        const auto line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(rest.size(), line.size() + 1));
        for (const auto caller : {Caller::sandboxed, Caller::trusted}) {
            const auto reply = stage.commands.interpret(line, caller);
            require(reply.text == printable(reply.text), "an answer is one line that harms no terminal");
            require(
                reply.text.empty() || reply.text.starts_with(reply.kind == ReplyKind::ok ? "ok" : "error"),
                "an answer begins with its kind");
            const auto json = stage.commands.jsonOf(reply);
            require(json.find('\n') == std::string::npos && json.starts_with('{'),
                "JSON is one object in one line");
        }
        checkRanges(*stage.controller.state().settings);
    }
    stage.world.advance(std::chrono::milliseconds(1));
    return 0;
}
