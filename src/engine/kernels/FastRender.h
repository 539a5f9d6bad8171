// SPDX-License-Identifier: MIT
// The vectorized render path: the bits of the plain implementation, in a fraction of the time.
//
// It processes many samples at a time, and skips work without effect: flat sections, the equalizer in silence, settled
// gains and limiter. docs/rendering.md explains why that is exact.
#pragma once

#include "base/RealTime.h"
#include "engine/EqualizerDesign.h"
#include "engine/RenderState.h"
#include "engine/kernels/RenderKernels.h"
#include "engine/kernels/SectionPacking.h"

#include <span>

namespace fadeloom {

/// The path of one app. Besides the state it caches only what follows from the last settings. Thread: IO.
class FastRender {
public:
    explicit FastRender(const RenderKernels& kernels) noexcept
        : kernels_(kernels)
    {
    }

    /// Equivalent to `renderPlain`. The filter state may differ where no sample shows it: values below 1e-60 become 0,
    /// and zeros may have the opposite sign.
    [[nodiscard]] float render(RenderState& state, const RenderSettings& settings, std::span<float> left,
        std::span<float> right) noexcept FADELOOM_NONBLOCKING;

private:
    void prepareSections(
        const RenderState& state, const EQCoefficients& sections) noexcept FADELOOM_NONBLOCKING;
    void equalize(RenderState& state, float preamp, std::span<float> left,
        std::span<float> right) const noexcept FADELOOM_NONBLOCKING;

    const RenderKernels& kernels_;
    EQCoefficients sections_{};
    SectionSet notFlat_;
    SectionSet active_;
    PackedSections packed_{};  // Of the active sections.
};

}  // namespace fadeloom
