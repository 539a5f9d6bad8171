// SPDX-License-Identifier: MIT
// What does it cost if many apps play? One cycle of all their renderers, each with ten bands.
#include "benchmarks/CycleStage.h"
#include "engine/kernels/RenderChoice.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <memory>
#include <vector>

namespace fadeloom {
namespace {

void renderers(benchmark::State& state)
{
    const auto count = static_cast<std::size_t>(state.range(0));
    std::vector<std::unique_ptr<CycleStage>> stages;
    for (std::size_t i = 0; i < count; ++i)
        stages.push_back(std::make_unique<CycleStage>(
            CycleStage::Setting{.isPlanar = true, .isEqualized = true}, chosenKernels()));

    for ([[maybe_unused]] auto _ : state) {
        for (auto& stage : stages)
            stage->cycle();
    }

    // Frames per second, summed over all renderers.
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(count * stages.front()->frames()));
}

BENCHMARK(renderers)->ArgName("apps")->Arg(1)->Arg(8)->Arg(32)->Arg(64);

}  // namespace
}  // namespace fadeloom
