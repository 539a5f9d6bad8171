// SPDX-License-Identifier: MIT
// The straightforward render path: frame by frame, section by section. It is the reference; a faster implementation
// must give the same bits.
#pragma once

#include "base/RealTime.h"
#include "engine/RenderState.h"

#include <span>

namespace fadeloom {

/// Renders in place and returns the block's maximum magnitude. `left` and `right`: equally long, of any length. Thread:
/// IO.
[[nodiscard]] float renderPlain(RenderState& state, const RenderSettings& settings, std::span<float> left,
    std::span<float> right) noexcept FADELOOM_NONBLOCKING;

}  // namespace fadeloom
