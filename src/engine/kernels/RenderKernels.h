// SPDX-License-Identifier: MIT
// The inner loops of the fast render path, compiled once per instruction set.
//
// A translation unit compiled for newer processors shares only plain data with the others: of an inline function used
// by two units the linker keeps one copy, possibly the one that older processors cannot run. So nothing in this header
// has a body.
#pragma once

#include "base/RealTime.h"

#include <cstddef>

namespace fadeloom {

/// The loops process at most this many frames at a time: intermediate data then stays in the L1 cache.
inline constexpr std::size_t kernelFrames = 512;

/// One pass of the cascade: sections in series, one or two of them per vector, each for left and right. They are in
/// slots, in signal order. Vector v holds slot v in its first half and, if it has a second half, slot `vectors` + v in
/// that: so a vector's output is the next one's input as is.
struct SectionPass {
    static constexpr int maximumSlots = 10;

    int sections;
    int halves;  // 1 or 2.
    int vectors;
    // The band of each slot that has a section; unused slots at the end are identities.
    int bands[maximumSlots];
    /// Vector by vector b0, b1, b2, a1, a2; of each the halves, and of these left and right, which are equal.
    alignas(32) double coefficients[maximumSlots * 5 * 2];
};

/// All active sections.
struct PackedSections {
    static constexpr int maximumPasses = 2;

    int passCount;
    SectionPass passes[maximumPasses];
};

/// The sections' state, by band.
struct SectionMemories {
    double* leftZ1;
    double* leftZ2;
    double* rightZ1;
    double* rightZ2;
};

/// Each function processes up to `kernelFrames` frames of planar stereo in place. Thread: IO.
struct RenderKernels {
    const char* name;
    int halves;  // The maximum per vector.

    /// Preamp and sections. A sample that is not finite after the preamp becomes silence.
    void (*equalize)(const PackedSections& sections, const SectionMemories& memories, float preamp,
        float* left, float* right, std::size_t frames) noexcept FADELOOM_NONBLOCKING;
    /// Multiplies by one gain. A product that is not finite becomes silence. Returns the maximum magnitude.
    float (*scale)(float gain, float* left, float* right, std::size_t frames) noexcept FADELOOM_NONBLOCKING;
    /// The same, with a gain per frame.
    float (*scaleEach)(
        const float* gains, float* left, float* right, std::size_t frames) noexcept FADELOOM_NONBLOCKING;
    /// Writes the magnitude of each frame's louder channel.
    void (*magnitudes)(const float* left, const float* right, float* louder,
        std::size_t frames) noexcept FADELOOM_NONBLOCKING;
    /// Whether all samples are 0.
    bool (*areSilent)(
        const float* left, const float* right, std::size_t frames) noexcept FADELOOM_NONBLOCKING;
};

/// For the baseline of every supported architecture.
extern const RenderKernels baselineKernels;

#ifdef __x86_64__
/// For processors with AVX2.
extern const RenderKernels avx2Kernels;
#endif

}  // namespace fadeloom
