// SPDX-License-Identifier: MIT
#include "engine/PlainRender.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace fadeloom {

namespace {

float equalized(float sample, float preamp, const EQCoefficients& sections, EQChannelState& memory) noexcept
{
    // Checked here and not earlier: a finite sample times the preamp can overflow as well.
    double x = finiteOrSilence(sample * preamp);
    for (std::size_t band = 0; band < sections.size(); ++band) {
        const auto& section = sections[band];
        const double y = section.b0 * x + memory.z1[band];
        memory.z1[band] = memory.z2[band] + (section.b1 * x - section.a1 * y);
        memory.z2[band] = section.b2 * x - section.a2 * y;
        x = y;
    }
    return std::abs(x) < eqOutputFlush ? 0.0F : static_cast<float>(x);
}

}  // namespace

float renderPlain(RenderState& state, const RenderSettings& settings, std::span<float> left,
    std::span<float> right) noexcept FADELOOM_NONBLOCKING
{
    float blockPeak = 0;
    for (std::size_t frame = 0; frame < left.size(); ++frame) {
        float l = left[frame];
        float r = right[frame];
        if (settings.isEqualized) {
            l = equalized(l, settings.preamp, settings.sections, state.left);
            r = equalized(r, settings.preamp, settings.sections, state.right);
        }

        state.gain.approach(settings.gainTarget);
        state.duck.approach(settings.duckTarget);
        const float gain = state.gain.current * state.duck.current;
        l = finiteOrSilence(l * gain);
        r = finiteOrSilence(r * gain);

        // The limiter tracks every frame, so that its state is current when it is needed; audio that is neither boosted
        // nor equalized bypasses it.
        const float reduction = state.limiter.reductionFor(std::max(std::abs(l), std::abs(r)));
        if (gain > 1 || settings.isEqualized) {
            l *= reduction;
            r *= reduction;
        }

        left[frame] = l;
        right[frame] = r;
        blockPeak = std::max({blockPeak, std::abs(l), std::abs(r)});
    }
    return blockPeak;
}

}  // namespace fadeloom
