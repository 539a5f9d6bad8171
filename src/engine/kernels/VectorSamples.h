// SPDX-License-Identifier: MIT
// The per-sample operations of the render path, a vector at a time.
#pragma once

#include "base/RealTime.h"
#include "engine/kernels/VectorTypes.h"

#include <cstddef>
#include <cstdint>

namespace fadeloom {
namespace {

// Without the sign, the bits of floats are integers in the order of magnitude; from here on up they are infinities and
// NaN.
constexpr std::int32_t withoutSign = 0x7FFFFFFF;
constexpr std::int32_t notFinite = 0x7F800000;

FADELOOM_INLINE Bits magnitude(Floats samples)
{
    return reinterpret_cast<Bits>(samples) & withoutSign;
}

FADELOOM_INLINE Bits higher(Bits one, Bits other)
{
    return one > other ? one : other;
}

FADELOOM_INLINE float highestOf(Bits magnitudes)
{
    std::int32_t highest = 0;
    for (std::size_t i = 0; i < floatsInVector; ++i)
        highest = magnitudes[i] > highest ? magnitudes[i] : highest;
    return __builtin_bit_cast(float, highest);
}

/// Returns the maximum magnitude of the rest, or `highest`.
[[gnu::noinline, gnu::cold]] inline float zeroNonFinite(float* samples, std::size_t count, float highest)
{
    for (std::size_t i = 0; i < count; ++i) {
        const float size = __builtin_fabsf(samples[i]);
        if (!(size <= __FLT_MAX__))
            samples[i] = 0;
        else if (size > highest)
            highest = size;
    }
    return highest;
}

/// `gainsAt`: the gains for a vector of samples.
template <class GainsAt>
FADELOOM_INLINE float scaled(GainsAt gainsAt, float* left, float* right, std::size_t frames)
{
    Bits highestLeft{};
    Bits highestRight{};
    forEachVector<floatsInVector>(frames, [&](std::size_t place, auto amount) {
        const auto gains = gainsAt(place, amount);
        const Floats l = load<Floats>(left + place, amount) * gains;
        const Floats r = load<Floats>(right + place, amount) * gains;
        store(l, left + place, amount);
        store(r, right + place, amount);
        highestLeft = higher(magnitude(l), highestLeft);
        highestRight = higher(magnitude(r), highestRight);
    });
    // Non-finite values compare above all finite ones: the peak, which is needed anyway, shows whether there are any.
    const float highest = highestOf(higher(highestLeft, highestRight));
    if (highest <= __FLT_MAX__)
        return highest;
    return zeroNonFinite(right, frames, zeroNonFinite(left, frames, 0));
}

inline float scale(float gain, float* left, float* right, std::size_t frames) noexcept FADELOOM_NONBLOCKING
{
    return scaled([=](std::size_t, auto) { return gain; }, left, right, frames);
}

inline float scaleEach(
    const float* gains, float* left, float* right, std::size_t frames) noexcept FADELOOM_NONBLOCKING
{
    const auto gainsAt = [=](std::size_t place, auto amount) { return load<Floats>(gains + place, amount); };
    return scaled(gainsAt, left, right, frames);
}

inline void magnitudes(
    const float* left, const float* right, float* louder, std::size_t frames) noexcept FADELOOM_NONBLOCKING
{
    forEachVector<floatsInVector>(frames, [&](std::size_t place, auto amount) {
        const Bits l = magnitude(load<Floats>(left + place, amount));
        const Bits r = magnitude(load<Floats>(right + place, amount));
        store(reinterpret_cast<Floats>(higher(l, r)), louder + place, amount);
    });
}

inline bool areSilent(const float* left, const float* right, std::size_t frames) noexcept FADELOOM_NONBLOCKING
{
    // In chunks: non-silent audio is usually found in the first one.
    constexpr std::size_t step = 64;
    for (std::size_t first = 0; first < frames; first += step) {
        Bits seen{};
        forEachVector<floatsInVector>(
            frames - first < step ? frames - first : step, [&](std::size_t place, auto amount) {
                seen |= magnitude(load<Floats>(left + first + place, amount));
                seen |= magnitude(load<Floats>(right + first + place, amount));
            });
        for (std::size_t i = 0; i < floatsInVector; ++i) {
            if (seen[i] != 0)
                return false;
        }
    }
    return true;
}

}  // namespace
}  // namespace fadeloom
