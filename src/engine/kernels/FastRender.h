// SPDX-License-Identifier: MIT
// The render path on vectors: the bits of the plain form, in a fraction of its time.
//
// It works on many samples at a time, and leaves out what would change nothing: flat sections, the equalizer in
// silence, gains and a limiter that stand still. docs/rendering.md tells why that is exact.
#pragma once

#include "base/RealTime.h"
#include "engine/EqualizerDesign.h"
#include "engine/RenderState.h"
#include "engine/kernels/RenderKernels.h"
#include "engine/kernels/SectionPacking.h"

#include <span>

namespace fadeloom {

/// The path of one app. Beside the state it keeps only what follows from the last settings. Thread: IO.
class FastRender {
public:
    explicit FastRender(const RenderKernels& kernels) noexcept
        : kernels_(kernels)
    {
    }

    /// As `renderPlain`. What the filters remember may differ where no sample shows it: memories below 1e-60 become 0,
    /// and zeros may have the other sign.
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
