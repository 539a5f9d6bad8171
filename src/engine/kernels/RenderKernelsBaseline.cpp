// SPDX-License-Identifier: MIT
#include "engine/kernels/VectorKernels.h"

namespace fadeloom {

constinit const RenderKernels baselineKernels = vectorKernels("baseline");

}  // namespace fadeloom
