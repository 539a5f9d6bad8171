// SPDX-License-Identifier: MIT
// How many times faster than the plain implementation of the render path is the fast one?
//
// All implementations alternate within each iteration, forwards and backwards, so that load and throttling affect them
// equally. The result is the best time of each.
#include "benchmarks/RenderCases.h"
#include "engine/kernels/RenderChoice.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <deque>
#include <limits>
#include <ranges>
#include <string>

namespace fadeloom {
namespace {

constexpr std::size_t framesOfATiming = 8192;
constexpr int iterations = 150;

struct Contestant {
    std::string name;
    RenderRun run;
    double best = std::numeric_limits<double>::infinity();  // Nanoseconds per frame.

    void time()
    {
        using Clock = std::chrono::steady_clock;
        run.rewind();
        const auto start = Clock::now();
        benchmark::DoNotOptimize(run.render(framesOfATiming));
        const std::chrono::duration<double, std::nano> passed = Clock::now() - start;
        best = std::min(best, passed.count() / framesOfATiming);
    }
};

void compare(benchmark::State& state, const RenderCase& which, std::size_t blockFrames)
{
    std::deque<Contestant> contestants;
    contestants.push_back({"plain", {which, blockFrames, nullptr}});
    for (const auto* kernels : usableKernels())
        contestants.push_back({kernels->name, {which, blockFrames, kernels}});

    for ([[maybe_unused]] auto _ : state) {
        for (auto& contestant : contestants)
            contestant.time();
        for (auto& contestant : contestants | std::views::reverse)
            contestant.time();
        state.SetIterationTime(contestants.back().best * framesOfATiming * 1e-9);
    }

    for (const auto& contestant : contestants) {
        if (!contestant.run.isSameAs(contestants.front().run))
            state.SkipWithError((contestant.name + " differs from the plain implementation").c_str());
        state.counters[contestant.name + "_ns"] = contestant.best;
        state.counters[contestant.name + "_ratio"] = contestants.front().best / contestant.best;
    }
}

void registerAll()
{
    for (const auto& which : renderCases) {
        for (const std::size_t blockFrames : {64U, 128U, 256U, 512U, 1024U}) {
            const auto name = std::string("render/ratio/") + which.name + "/" + std::to_string(blockFrames);
            benchmark::RegisterBenchmark(name.c_str(), compare, which, blockFrames)
                ->UseManualTime()
                ->Iterations(iterations);
        }
    }
}

}  // namespace
}  // namespace fadeloom

int main(int count, char** arguments)
{
#ifdef __clang__
    benchmark::AddCustomContext("compiler", __VERSION__);
#else
    benchmark::AddCustomContext("compiler", "GCC " __VERSION__);
#endif
    fadeloom::registerAll();
    benchmark::Initialize(&count, arguments);
    if (benchmark::ReportUnrecognizedArguments(count, arguments))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
