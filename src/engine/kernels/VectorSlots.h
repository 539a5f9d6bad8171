// SPDX-License-Identifier: MIT
// A vector of the cascade: one slot for a section, or two halves with one slot each.
#pragma once

#include "engine/kernels/VectorTypes.h"

namespace fadeloom {
namespace {

template <int halves>
struct Slots;

template <>
struct Slots<1> {
    using Vector = Pair;

    FADELOOM_INLINE static Vector entered(Pair frame, Vector) { return frame; }
    FADELOOM_INLINE static Pair last(Vector vector) { return vector; }
    FADELOOM_INLINE static Vector placed(Pair pair, int) { return pair; }
    FADELOOM_INLINE static Pair taken(Vector vector, int) { return vector; }
};

#ifdef __AVX2__
template <>
struct Slots<2> {
    using Vector = TwoPairs;

    /// Shifts the frame into the first half, whose contents move to the second.
    FADELOOM_INLINE static Vector entered(Pair frame, Vector vector)
    {
        const Vector first = __builtin_shufflevector(frame, frame, 0, 1, -1, -1);
        return __builtin_shufflevector(first, vector, 0, 1, 4, 5);
    }
    FADELOOM_INLINE static Pair last(Vector vector) { return Pair{vector[2], vector[3]}; }
    /// The pair in this half, 0 in the other.
    FADELOOM_INLINE static Vector placed(Pair pair, int half)
    {
        const auto isThere = TwoPairsBits{0, 0, 1, 1} == half;
        return isThere ? __builtin_shufflevector(pair, pair, 0, 1, 0, 1) : Vector{};
    }
    FADELOOM_INLINE static Pair taken(Vector vector, int half)
    {
        return half == 0 ? Pair{vector[0], vector[1]} : Pair{vector[2], vector[3]};
    }
};
#endif

}  // namespace
}  // namespace fadeloom
