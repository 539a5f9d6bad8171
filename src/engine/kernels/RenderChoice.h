// SPDX-License-Identifier: MIT
// Which form of the render path this processor runs best.
#pragma once

#include "engine/kernels/RenderKernels.h"

#include <span>

namespace fadeloom {

/// Every set of kernels that this processor can run, the best one last.
[[nodiscard]] std::span<const RenderKernels* const> usableKernels() noexcept;

/// The best kernels; null for the plain form, which a build can ask for (FADELOOM_PLAIN_RENDER).
[[nodiscard]] const RenderKernels* chosenKernels() noexcept;

}  // namespace fadeloom
