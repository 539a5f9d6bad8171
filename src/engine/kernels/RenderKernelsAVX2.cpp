// SPDX-License-Identifier: MIT
// Compiled for processors with AVX2. Empty on other architectures.
#ifdef __x86_64__

#include "engine/kernels/VectorKernels.h"

#ifndef __AVX2__
#error "needs the compiler's option for AVX2"
#endif

namespace fadeloom {

constinit const RenderKernels avx2Kernels = vectorKernels("AVX2");

}  // namespace fadeloom

#endif
