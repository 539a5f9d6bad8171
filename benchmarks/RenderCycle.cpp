// SPDX-License-Identifier: MIT
// What does a whole IO cycle cost: settings, tap, recording, render path, output? Alternates between the plain
// implementation and the best one.
#include "engine/Renderer.h"

#include "benchmarks/CycleStage.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <limits>

namespace fadeloom {
namespace {

constexpr std::size_t cyclesOfATiming = 16;
constexpr int iterations = 300;

double nanosecondsPerFrame(CycleStage& stage)
{
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    for (std::size_t cycle = 0; cycle < cyclesOfATiming; ++cycle)
        stage.cycle();
    const std::chrono::duration<double, std::nano> passed = Clock::now() - start;
    return passed.count() / static_cast<double>(cyclesOfATiming * stage.frames());
}

void cycle(benchmark::State& state, const CycleStage::Setting& setting)
{
    CycleStage plain(setting, nullptr);
    CycleStage best(setting, chosenKernels());
    double plainTime = std::numeric_limits<double>::infinity();
    double bestTime = plainTime;

    for ([[maybe_unused]] auto _ : state) {
        plainTime = std::min(plainTime, nanosecondsPerFrame(plain));
        bestTime = std::min(bestTime, nanosecondsPerFrame(best));
        bestTime = std::min(bestTime, nanosecondsPerFrame(best));
        plainTime = std::min(plainTime, nanosecondsPerFrame(plain));
        state.SetIterationTime(bestTime * static_cast<double>(cyclesOfATiming * best.frames()) * 1e-9);
    }

    state.counters["plain_ns"] = plainTime;
    state.counters["best_ns"] = bestTime;
    state.counters["best_ratio"] = plainTime / bestTime;
}

void each(benchmark::internal::Benchmark* cycles)
{
    cycles->UseManualTime()->Iterations(iterations);
}

BENCHMARK_CAPTURE(cycle, planar_off, {.isPlanar = true})->Apply(each);
BENCHMARK_CAPTURE(cycle, planar_off_recording, {.isPlanar = true, .isRecorded = true})->Apply(each);
BENCHMARK_CAPTURE(cycle, planar_eq10, {.isPlanar = true, .isEqualized = true})->Apply(each);
BENCHMARK_CAPTURE(cycle, planar_eq10_recording, {.isPlanar = true, .isEqualized = true, .isRecorded = true})
    ->Apply(each);
BENCHMARK_CAPTURE(cycle, interleaved_off, {})->Apply(each);
BENCHMARK_CAPTURE(cycle, interleaved_off_recording, {.isRecorded = true})->Apply(each);
BENCHMARK_CAPTURE(cycle, interleaved_eq10, {.isEqualized = true})->Apply(each);
BENCHMARK_CAPTURE(cycle, interleaved_eq10_recording, {.isEqualized = true, .isRecorded = true})->Apply(each);

}  // namespace
}  // namespace fadeloom
