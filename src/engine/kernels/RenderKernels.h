// SPDX-License-Identifier: MIT
// The loops of the fast render path, compiled once for each kind of processor.
//
// A unit that is compiled for newer processors shares plain data with the others and nothing else: of an inline
// function that two units use the linker keeps one, and that could be the one that older processors cannot run. So
// nothing in this header has a body.
#pragma once

#include "base/RealTime.h"

#include <cstddef>

namespace fadeloom {

/// The loops go no further than this many frames at a time: what passes between them then stays in the nearest cache.
inline constexpr std::size_t kernelFrames = 512;

/// One run of the cascade: sections in series, one or two of them in a vector, each for left and right.
/// They stand in slots, in the order of the sound. Vector v holds slot v in its first half, and in its second half,
/// where it has one, slot `vectors` + v: so what a vector puts out is the next one's input as it is.
struct SectionPass {
    static constexpr int maximumSlots = 10;

    int sections;
    int halves;  // 1 or 2.
    int vectors;
    // Of each slot that has a section; what is left over at the end changes nothing.
    int bands[maximumSlots];
    /// Vector after vector b0, b1, b2, a1, a2; of each the halves, and of these left and right, which are the same.
    alignas(32) double coefficients[maximumSlots * 5 * 2];
};

/// All sections that have something to do.
struct PackedSections {
    static constexpr int maximumPasses = 2;

    int passCount;
    SectionPass passes[maximumPasses];
};

/// Where the sections' memories are kept, by band.
struct SectionMemories {
    double* leftZ1;
    double* leftZ2;
    double* rightZ1;
    double* rightZ2;
};

/// Each function takes up to `kernelFrames` frames of planar stereo and works in place. Thread: IO.
struct RenderKernels {
    const char* name;
    int halves;  // The most that a vector has.

    /// Preamp and sections. A sample that is not finite after the preamp is silence.
    void (*equalize)(const PackedSections& sections, const SectionMemories& memories, float preamp,
        float* left, float* right, std::size_t frames) noexcept FADELOOM_NONBLOCKING;
    /// Multiplies by one gain. A product that is not finite is silence. Returns the highest magnitude.
    float (*scale)(float gain, float* left, float* right, std::size_t frames) noexcept FADELOOM_NONBLOCKING;
    /// The same, with a gain for each frame.
    float (*scaleEach)(
        const float* gains, float* left, float* right, std::size_t frames) noexcept FADELOOM_NONBLOCKING;
    /// Writes the magnitude of each frame's louder side.
    void (*magnitudes)(const float* left, const float* right, float* louder,
        std::size_t frames) noexcept FADELOOM_NONBLOCKING;
    /// Whether every sample is 0.
    bool (*areSilent)(
        const float* left, const float* right, std::size_t frames) noexcept FADELOOM_NONBLOCKING;
};

/// For every processor that the program is built for.
extern const RenderKernels baselineKernels;

#ifdef __x86_64__
/// For processors with AVX2.
extern const RenderKernels avx2Kernels;
#endif

}  // namespace fadeloom
