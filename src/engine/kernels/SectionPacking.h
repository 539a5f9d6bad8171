// SPDX-License-Identifier: MIT
// Lays sections out for the vectors of the render kernels.
#pragma once

#include "base/RealTime.h"
#include "engine/EqualizerDesign.h"
#include "engine/kernels/RenderKernels.h"

#include <bitset>

namespace fadeloom {

using SectionSet = std::bitset<eqBandCount>;  // By band.

/// The chosen sections, in band order, in as few passes as are fastest. `halves`: the most that a vector has.
[[nodiscard]] PackedSections packed(
    const EQCoefficients& sections, SectionSet chosen, int halves) noexcept FADELOOM_NONBLOCKING;

}  // namespace fadeloom
