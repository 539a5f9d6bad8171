// SPDX-License-Identifier: MIT
// Packs sections into the vectors of the render kernels.
#pragma once

#include "base/RealTime.h"
#include "engine/EqualizerDesign.h"
#include "engine/kernels/RenderKernels.h"

#include <bitset>

namespace fadeloom {

using SectionSet = std::bitset<eqBandCount>;  // By band.

/// The selected sections, in band order, in the fastest number of passes. `halves`: the maximum per vector.
[[nodiscard]] PackedSections packed(
    const EQCoefficients& sections, SectionSet chosen, int halves) noexcept FADELOOM_NONBLOCKING;

}  // namespace fadeloom
