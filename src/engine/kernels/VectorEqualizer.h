// SPDX-License-Identifier: MIT
// The equalizer from samples to samples: single precision outside, double precision in the sections.
#pragma once

#include "base/RealTime.h"
#include "engine/kernels/RenderKernels.h"
#include "engine/kernels/VectorCascade.h"
#include "engine/kernels/VectorSamples.h"
#include "engine/kernels/VectorTypes.h"

#include <cstddef>
#include <cstdint>

namespace fadeloom {
namespace {

constexpr double flushBelow = 1e-25;  // `eqOutputFlush`, whose header has inline functions.
constexpr std::int64_t withoutSignOfDouble = 0x7FFFFFFFFFFFFFFF;

FADELOOM_INLINE FourFloats finiteOrSilence(FourFloats samples)
{
    const auto bits = reinterpret_cast<FourBits>(samples);
    return reinterpret_cast<FourFloats>(bits & ((bits & withoutSign) < notFinite));
}

template <class Doubles, class DoublesBits>
FADELOOM_INLINE Doubles flushed(Doubles samples)
{
    const auto bits = reinterpret_cast<DoublesBits>(samples);
    const auto magnitudes = reinterpret_cast<Doubles>(bits & withoutSignOfDouble);
    return reinterpret_cast<Doubles>(bits & ~(magnitudes < flushBelow));
}

// Neither formulation of these two compiles to the intended instructions everywhere.
#ifdef __AVX2__
FADELOOM_INLINE void widen(FourFloats twoFrames, Pair* frames)
{
    const TwoPairs wide{twoFrames[0], twoFrames[1], twoFrames[2], twoFrames[3]};
    __builtin_memcpy(frames, &wide, sizeof wide);
}
FADELOOM_INLINE FourFloats flushedAndNarrowed(const Pair* frames)
{
    TwoPairs wide;
    __builtin_memcpy(&wide, frames, sizeof wide);
    return __builtin_convertvector((flushed<TwoPairs, TwoPairsBits>(wide)), FourFloats);
}
#else
FADELOOM_INLINE void widen(FourFloats twoFrames, Pair* frames)
{
    const auto wide = __builtin_convertvector(twoFrames, TwoPairs);
    frames[0] = __builtin_shufflevector(wide, wide, 0, 1);
    frames[1] = __builtin_shufflevector(wide, wide, 2, 3);
}
FADELOOM_INLINE FourFloats flushedAndNarrowed(const Pair* frames)
{
    const Pair first = flushed<Pair, PairBits>(frames[0]);
    const Pair second = flushed<Pair, PairBits>(frames[1]);
    return __builtin_convertvector(__builtin_shufflevector(first, second, 0, 1, 2, 3), FourFloats);
}
#endif

/// Each possible number of slots gets its own loop, so that every vector is in a register.
template <class Form>
void runCascade(const SectionPass& pass, const SectionMemories& memories, Pair* frames, std::size_t count)
{
#ifdef __AVX2__
    switch (pass.halves * 10 + pass.vectors) {
    case 23:
        return Cascade<Form, 2, 3>::run(pass, memories, frames, count);
    case 24:
        return Cascade<Form, 2, 4>::run(pass, memories, frames, count);
    case 25:
        return Cascade<Form, 2, 5>::run(pass, memories, frames, count);
    default:
        break;
    }
#endif
    switch (pass.vectors) {
    case 1:
        return Cascade<Form, 1, 1>::run(pass, memories, frames, count);
    case 2:
        return Cascade<Form, 1, 2>::run(pass, memories, frames, count);
    case 3:
        return Cascade<Form, 1, 3>::run(pass, memories, frames, count);
    case 4:
        return Cascade<Form, 1, 4>::run(pass, memories, frames, count);
    default:
        return Cascade<Form, 1, 5>::run(pass, memories, frames, count);
    }
}

template <class Form>
void equalize(const PackedSections& sections, const SectionMemories& memories, float preamp, float* left,
    float* right, std::size_t frames) noexcept FADELOOM_NONBLOCKING
{
    constexpr std::size_t width = 4;
    static_assert(kernelFrames % width == 0);
    Pair pairs[kernelFrames];

    forEachVector<width>(frames, [&](std::size_t place, auto amount) {
        const FourFloats l = finiteOrSilence(load<FourFloats>(left + place, amount) * preamp);
        const FourFloats r = finiteOrSilence(load<FourFloats>(right + place, amount) * preamp);
        widen(__builtin_shufflevector(l, r, 0, 4, 1, 5), pairs + place);
        widen(__builtin_shufflevector(l, r, 2, 6, 3, 7), pairs + place + 2);
    });
    for (int pass = 0; pass < sections.passCount; ++pass)
        runCascade<Form>(sections.passes[pass], memories, pairs, frames);
    forEachVector<width>(frames, [&](std::size_t place, auto amount) {
        const FourFloats first = flushedAndNarrowed(pairs + place);
        const FourFloats second = flushedAndNarrowed(pairs + place + 2);
        store(__builtin_shufflevector(first, second, 0, 2, 4, 6), left + place, amount);
        store(__builtin_shufflevector(first, second, 1, 3, 5, 7), right + place, amount);
    });
}

}  // namespace
}  // namespace fadeloom
