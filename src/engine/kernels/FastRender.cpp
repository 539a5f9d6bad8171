// SPDX-License-Identifier: MIT
#include "engine/kernels/FastRender.h"

#include "engine/kernels/FastGains.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>

namespace fadeloom {

namespace {

// Compares all bytes at once, which is faster than number by number. At worst, equal sections are packed once more.
bool areSame(const EQCoefficients& one, const EQCoefficients& other)
{
    const auto bytes = std::as_bytes(std::span(one));
    return std::memcmp(bytes.data(), std::as_bytes(std::span(other)).data(), bytes.size()) == 0;
}

bool isAtZero(const RenderState& state, std::size_t band)
{
    return state.left.z1[band] == 0 && state.left.z2[band] == 0 && state.right.z1[band] == 0
        && state.right.z2[band] == 0;
}

bool isAtZero(const RenderState& state)
{
    for (std::size_t band = 0; band < eqBandCount; ++band) {
        if (!isAtZero(state, band))
            return false;
    }
    return true;
}

// After the audio has ended, the filter state decays into denormals, which are slow, and may stay there permanently.
// This threshold is 35 decades below the output that the equalizer flushes, and an addition reaches only 16: no sample
// is affected. With zero state the silence that follows costs next to nothing.
constexpr double inaudible = 1e-60;

void flushDenormals(EQChannelState& memory)
{
    for (auto* values : {&memory.z1, &memory.z2}) {
        for (double& value : *values)
            value = std::abs(value) < inaudible ? 0 : value;
    }
}

}  // namespace

float FastRender::render(RenderState& state, const RenderSettings& settings, std::span<float> left,
    std::span<float> right) noexcept FADELOOM_NONBLOCKING
{
    if (settings.isEqualized)
        prepareSections(state, settings.sections);

    float highest = 0;
    for (std::size_t first = 0; first < left.size(); first += kernelFrames) {
        const std::size_t frames = std::min(kernelFrames, left.size() - first);
        const auto l = left.subspan(first, frames);
        const auto r = right.subspan(first, frames);
        if (settings.isEqualized)
            equalize(state, settings.preamp, l, r);
        highest = std::max(highest, applyGains(kernels_, state, settings, l, r));
    }

    if (settings.isEqualized) {
        flushDenormals(state.left);
        flushDenormals(state.right);
    }
    return highest;
}

// A flat section passes its input through, and the state from before it was flat is gone after two frames.
void FastRender::prepareSections(
    const RenderState& state, const EQCoefficients& sections) noexcept FADELOOM_NONBLOCKING
{
    const bool areNew = !areSame(sections, sections_);
    if (areNew) {
        sections_ = sections;
        for (std::size_t band = 0; band < eqBandCount; ++band)
            notFlat_[band] = sections[band] != BiquadCoefficients{};
    }
    SectionSet active = notFlat_;
    for (std::size_t band = 0; band < eqBandCount; ++band) {
        if (!notFlat_[band])
            active[band] = !isAtZero(state, band);
    }
    if (areNew || active != active_) {
        active_ = active;
        packed_ = packed(sections_, active_, kernels_.halves);
    }
}

void FastRender::equalize(RenderState& state, float preamp, std::span<float> left,
    std::span<float> right) const noexcept FADELOOM_NONBLOCKING
{
    if (kernels_.areSilent(left.data(), right.data(), left.size()) && isAtZero(state)) {
        std::ranges::fill(left, 0.0F);  // Some of it may have been -0.
        std::ranges::fill(right, 0.0F);
        return;
    }
    const SectionMemories memories{
        .leftZ1 = state.left.z1.data(),
        .leftZ2 = state.left.z2.data(),
        .rightZ1 = state.right.z1.data(),
        .rightZ2 = state.right.z2.data(),
    };
    kernels_.equalize(packed_, memories, preamp, left.data(), right.data(), left.size());
}

}  // namespace fadeloom
