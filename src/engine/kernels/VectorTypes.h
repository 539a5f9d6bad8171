// SPDX-License-Identifier: MIT
// Vector types of GCC and Clang, as wide as the instruction set of the translation unit.
//
// This header and those that build on it belong to the units that are compiled once per instruction set. Everything is
// private to the unit; RenderKernels.h explains why.
#pragma once

#include <cstddef>
#include <cstdint>

/// For functions with vector parameters or results: out of line, they would pass them through memory.
#define FADELOOM_INLINE [[gnu::always_inline]] inline

namespace fadeloom {
namespace {

#ifdef __AVX2__
constexpr std::size_t floatsInVector = 8;
#else
constexpr std::size_t floatsInVector = 4;
#endif
using Floats = float __attribute__((vector_size(4 * floatsInVector)));
using Bits = std::int32_t __attribute__((vector_size(4 * floatsInVector)));

using FourFloats = float __attribute__((vector_size(16)));
using FourBits = std::int32_t __attribute__((vector_size(16)));

/// One frame, left and right; and two of them.
using Pair = double __attribute__((vector_size(16)));
using PairBits = std::int64_t __attribute__((vector_size(16)));
using TwoPairs = double __attribute__((vector_size(32)));
using TwoPairsBits = std::int64_t __attribute__((vector_size(32)));

/// How much of a vector is in memory: all of it, or at the end of a block the first few elements.
struct Whole { };
struct Part {
    std::size_t count;
};

template <class Vector>
FADELOOM_INLINE Vector load(const float* samples, Whole)
{
    Vector vector;
    __builtin_memcpy(&vector, samples, sizeof vector);
    return vector;
}
template <class Vector>
FADELOOM_INLINE Vector load(const float* samples, Part part)
{
    Vector vector{};
    __builtin_memcpy(&vector, samples, part.count * sizeof(float));
    return vector;
}

template <class Vector>
FADELOOM_INLINE void store(Vector vector, float* samples, Whole)
{
    __builtin_memcpy(samples, &vector, sizeof vector);
}
template <class Vector>
FADELOOM_INLINE void store(Vector vector, float* samples, Part part)
{
    __builtin_memcpy(samples, &vector, part.count * sizeof(float));
}

/// Calls `body` for each vector of samples, with the index of its first one, and its size.
template <std::size_t width, class Body>
FADELOOM_INLINE void forEachVector(std::size_t samples, Body body)
{
    std::size_t place = 0;
    for (; place + width <= samples; place += width)
        body(place, Whole{});
    if (place < samples)
        body(place, Part{samples - place});
}

}  // namespace
}  // namespace fadeloom
