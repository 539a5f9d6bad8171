// SPDX-License-Identifier: MIT
// What does moving an equalizer slider cost the main thread: design, hand-over, curve, headroom?
#include "engine/EqualizerDesign.h"
#include "engine/EqualizerHeadroom.h"
#include "engine/TapParameters.h"

#include <benchmark/benchmark.h>

#include <array>

namespace fadeloom {
namespace {

constexpr std::array gains{6.0F, -4.0F, 3.0F, -2.0F, 7.0F, -6.0F, 4.0F, 2.0F, -3.0F, 5.0F};
constexpr double sampleRate = 48000;

void design(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(eqCoefficients(gains, sampleRate));
}
BENCHMARK(design);

void designAndHandOver(benchmark::State& state)
{
    TapParameters parameters;
    for ([[maybe_unused]] auto _ : state)
        parameters.setEQ(eqCoefficients(gains, sampleRate));
    benchmark::DoNotOptimize(parameters.coefficients);
}
BENCHMARK(designAndHandOver);

void responseAtOneFrequency(benchmark::State& state)
{
    const auto coefficients = eqCoefficients(gains, sampleRate);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(eqResponseDB(coefficients, 1000, sampleRate));
}
BENCHMARK(responseAtOneFrequency);

void headroom(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(eqLoudnessGainDB(gains, sampleRate));
}
BENCHMARK(headroom);

}  // namespace
}  // namespace fadeloom
