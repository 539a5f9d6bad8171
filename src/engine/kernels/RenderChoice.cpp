// SPDX-License-Identifier: MIT
#include "engine/kernels/RenderChoice.h"

#include <array>

namespace fadeloom {

std::span<const RenderKernels* const> usableKernels() noexcept
{
#ifdef __x86_64__
    static constexpr std::array all{&baselineKernels, &avx2Kernels};
    // Also checks for the system's support: saving the wide registers of each thread.
    return __builtin_cpu_supports("avx2") ? std::span(all) : std::span(all).first(1);
#else
    static constexpr std::array all{&baselineKernels};
    return all;
#endif
}

const RenderKernels* chosenKernels() noexcept
{
#ifdef FADELOOM_PLAIN_RENDER
    return nullptr;
#else
    return usableKernels().back();
#endif
}

}  // namespace fadeloom
