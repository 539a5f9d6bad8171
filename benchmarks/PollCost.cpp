// SPDX-License-Identifier: MIT
// What does a poll of the controller cost, with a given number of playing processes? The audio system is simulated, so
// this is our share; the cost of querying a real one comes on top (tests/control/PollCostTest.cpp counts the queries).
#include "control/AudioController.h"
#include "log/EngineLog.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "tests/support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdint>
#include <string>

namespace fadeloom {
namespace {

void poll(benchmark::State& state)
{
    const TemporaryFolder folder;
    SimulatedPlatform world{folder.path()};
    EngineLog log{world.systemLog(), world.platform().logQueue, folder.path() / "Fadeloom"};
    world.audioWorld().setCycleInterval(std::chrono::milliseconds(0));  // Nothing is rendered.
    world.plug({.uid = "speakers", .name = "Desk Speakers"});
    for (std::int64_t i = 0; i < state.range(0); ++i)
        world.startPlaying(world.launchApp("App " + std::to_string(i)));
    AudioController controller{world.platform(), log, "1.2.3"};

    for ([[maybe_unused]] auto _ : state)
        controller.poll();
}

BENCHMARK(poll)->ArgName("processes")->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace fadeloom
