// SPDX-License-Identifier: MIT
#include "engine/kernels/FastGains.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace fadeloom {

namespace {

using Frames = std::array<float, kernelFrames>;  // A value per frame.

// A step that changes nothing is followed by identical ones: at the target, and where single precision stops a slow
// ramp just short of it. Bits are compared, because a gain of -0 gives other samples than one of 0.
bool isSteady(GainSmoother smoother, float target)
{
    const float before = smoother.current;
    smoother.approach(target);
    return std::bit_cast<std::uint32_t>(smoother.current) == std::bit_cast<std::uint32_t>(before);
}

// The release settles in the same way, usually just below 1. Rounding preserves the order of products: if the largest
// frame does not trigger the limiter, none does.
bool isAtRest(const PeakLimiter& limiter, float highest)
{
    return limiter.recovered() == limiter.reduction && !(limiter.reduction * highest > PeakLimiter::ceiling);
}

void glide(GainSmoother& smoother, float target, std::span<float> gains)
{
    GainSmoother moving = smoother;
    auto gain = gains.begin();
    while (gain != gains.end()) {
        const bool hasArrived = moving.approach(target);
        *gain++ = moving.current;
        if (hasArrived)
            break;  // Continuing in the same loop would make each step depend on the branch.
    }
    std::fill(gain, gains.end(), moving.current);
    smoother = moving;
}

void follow(const RenderKernels& kernels, PeakLimiter& limiter, std::span<const float> left,
    std::span<const float> right, Frames& reductions)
{
    kernels.magnitudes(left.data(), right.data(), reductions.data(), left.size());
    PeakLimiter moving = limiter;
    for (float& value : std::span(reductions).first(left.size()))
        value = moving.reductionFor(value);
    limiter = moving;
}

float applySteadyGain(const RenderKernels& kernels, RenderState& state, const RenderSettings& settings,
    std::span<float> left, std::span<float> right)
{
    const float gain = state.gain.current * state.duck.current;
    const bool isLimited = gain > 1 || settings.isEqualized;
    const float highest = kernels.scale(gain, left.data(), right.data(), left.size());

    if (isAtRest(state.limiter, highest)) {
        const float reduction = state.limiter.reduction;
        return isLimited && reduction != 1 ? kernels.scale(reduction, left.data(), right.data(), left.size())
                                           : highest;
    }
    Frames reductions;
    follow(kernels, state.limiter, left, right, reductions);
    return isLimited ? kernels.scaleEach(reductions.data(), left.data(), right.data(), left.size()) : highest;
}

float applyMovingGain(const RenderKernels& kernels, RenderState& state, const RenderSettings& settings,
    std::span<float> left, std::span<float> right)
{
    const std::size_t frames = left.size();
    Frames gains;
    Frames others;
    glide(state.gain, settings.gainTarget, std::span(gains).first(frames));
    glide(state.duck, settings.duckTarget, std::span(others).first(frames));
    for (std::size_t i = 0; i < frames; ++i)
        gains[i] *= others[i];
    const float highest = kernels.scaleEach(gains.data(), left.data(), right.data(), frames);

    Frames& reductions = others;
    if (!isAtRest(state.limiter, highest))
        follow(kernels, state.limiter, left, right, reductions);
    else if (state.limiter.reduction == 1)
        return highest;
    else
        std::fill_n(reductions.begin(), frames, state.limiter.reduction);
    for (std::size_t i = 0; i < frames && !settings.isEqualized; ++i)
        reductions[i] = gains[i] > 1 ? reductions[i] : 1;
    return kernels.scaleEach(reductions.data(), left.data(), right.data(), frames);
}

}  // namespace

float applyGains(const RenderKernels& kernels, RenderState& state, const RenderSettings& settings,
    std::span<float> left, std::span<float> right) noexcept FADELOOM_NONBLOCKING
{
    const bool areSteady =
        isSteady(state.gain, settings.gainTarget) && isSteady(state.duck, settings.duckTarget);
    return areSteady ? applySteadyGain(kernels, state, settings, left, right)
                     : applyMovingGain(kernels, state, settings, left, right);
}

}  // namespace fadeloom
