// SPDX-License-Identifier: MIT
// The fast render path after the equalizer: gains, limiter, peak.
#pragma once

#include "base/RealTime.h"
#include "engine/RenderState.h"
#include "engine/kernels/RenderKernels.h"

#include <span>

namespace fadeloom {

/// Works in place on up to `kernelFrames` frames and returns the maximum magnitude. Thread: IO.
[[nodiscard]] float applyGains(const RenderKernels& kernels, RenderState& state,
    const RenderSettings& settings, std::span<float> left,
    std::span<float> right) noexcept FADELOOM_NONBLOCKING;

}  // namespace fadeloom
