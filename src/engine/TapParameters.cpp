// SPDX-License-Identifier: MIT
#include "engine/TapParameters.h"

#include <algorithm>
#include <mutex>

namespace fadeloom {

void TapParameters::setEQ(std::span<const BiquadCoefficients> sections)
{
    const std::scoped_lock guard(lock);
    std::ranges::copy(sections.first(std::min(sections.size(), coefficients.size())), coefficients.begin());
    values.eqVersion += 1;
}

float TapParameters::takePeak()
{
    return peak.exchange(0, std::memory_order_relaxed);
}

}  // namespace fadeloom
