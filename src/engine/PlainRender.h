// SPDX-License-Identifier: MIT
// The render path as it reads: one frame after the other, one section after the other. It says what is right; a faster
// form has to give the same bits.
#pragma once

#include "base/RealTime.h"
#include "engine/RenderState.h"

#include <span>

namespace fadeloom {

/// Renders in place and returns the block's highest magnitude. `left` and `right`: the same number of samples, any.
/// Thread: IO.
[[nodiscard]] float renderPlain(RenderState& state, const RenderSettings& settings, std::span<float> left,
    std::span<float> right) noexcept FADELOOM_NONBLOCKING;

}  // namespace fadeloom
