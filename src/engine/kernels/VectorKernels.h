// SPDX-License-Identifier: MIT
// The render kernels, compiled into the including translation unit.
#pragma once

#include "engine/kernels/RenderKernels.h"
#include "engine/kernels/VectorEqualizer.h"
#include "engine/kernels/VectorSamples.h"

namespace fadeloom {
namespace {

/// `Form`: provides the section's step.
template <class Form = Section>
constexpr RenderKernels vectorKernels(const char* name)
{
#ifdef __AVX2__
    constexpr int halves = 2;
#else
    constexpr int halves = 1;
#endif
    return {
        .name = name,
        .halves = halves,
        .equalize = equalize<Form>,
        .scale = scale,
        .scaleEach = scaleEach,
        .magnitudes = magnitudes,
        .areSilent = areSilent,
    };
}

}  // namespace
}  // namespace fadeloom
