// SPDX-License-Identifier: MIT
// Selects the fastest render path for this processor.
#pragma once

#include "engine/kernels/RenderKernels.h"

#include <span>

namespace fadeloom {

/// All kernels that this processor can run, the best one last.
[[nodiscard]] std::span<const RenderKernels* const> usableKernels() noexcept;

/// The best kernels; null for the plain implementation, which a build can select (FADELOOM_PLAIN_RENDER).
[[nodiscard]] const RenderKernels* chosenKernels() noexcept;

}  // namespace fadeloom
