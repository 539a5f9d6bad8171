// SPDX-License-Identifier: MIT
// The cases that the render path is measured with.
#pragma once

#include "engine/PlainRender.h"
#include "engine/kernels/FastRender.h"
#include "engine/kernels/RenderKernels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace fadeloom {

struct RenderCase {
    const char* name;
    std::optional<std::size_t> bands;  // Number of bands that are not flat; nullopt: the equalizer is off.
    float level;  // Of the input; 1 is full scale.
    float gain = 1;
    float startGain = gain;  // Where its ramp starts.
};

// Quiet input stays below the limiter; loud input keeps it active.
inline constexpr std::array renderCases{
    RenderCase{.name = "off", .bands = {}, .level = 0.3F},
    RenderCase{.name = "off_full_scale", .bands = {}, .level = 1},
    RenderCase{.name = "off_boost", .bands = {}, .level = 1e-6F, .gain = 1.5F},
    RenderCase{.name = "off_ramp", .bands = {}, .level = 0.3F, .gain = 1, .startGain = 0},
    RenderCase{.name = "off_limiting", .bands = {}, .level = 0.8F, .gain = 2},
    RenderCase{.name = "eq10", .bands = 10, .level = 0.01F},
    RenderCase{.name = "eq10_limiting", .bands = 10, .level = 1, .gain = 2},
    RenderCase{.name = "eq5", .bands = 5, .level = 0.01F},
    RenderCase{.name = "eq3", .bands = 3, .level = 0.01F},
    RenderCase{.name = "eq1", .bands = 1, .level = 0.01F},
    RenderCase{.name = "eq0", .bands = 0, .level = 0.01F},
    RenderCase{.name = "eq10_silence", .bands = 10, .level = 0},
};

/// One case in one implementation, run repeatedly. The signal fits into the L1 cache; the output is rendered in place
/// again, so a case must be one whose signal allows that.
class RenderRun {
public:
    /// `kernels`: null for the plain implementation.
    RenderRun(const RenderCase& which, std::size_t blockFrames, const RenderKernels* kernels)
        : case_(which)
        , blockFrames_(blockFrames)
        , sections_(eqCoefficients(gainsOf(which), sampleRate))
    {
        if (kernels)
            fast_.emplace(*kernels);
        for (std::size_t i = 0; i < std::max<std::size_t>(blockFrames, 1024); ++i) {
            originalLeft_.push_back(which.level * std::sin(0.05F * static_cast<float>(i)));
            originalRight_.push_back(which.level * std::cos(0.013F * static_cast<float>(i)));
        }
        rewind();
    }

    /// Restores the signal and the gain. Filter and limiter state is kept.
    void rewind()
    {
        left_ = originalLeft_;
        right_ = originalRight_;
        state_.gain.current = case_.startGain;
    }

    /// Continues; after some thousand frames it is time to rewind. Returns the peak.
    float render(std::size_t frames)
    {
        const RenderSettings settings{
            .gainTarget = case_.gain,
            .isEqualized = case_.bands.has_value(),
            .preamp = 0.9F,
            .sections = sections_,
        };
        float peak = 0;
        for (std::size_t frame = 0; frame < frames; frame += blockFrames_) {
            const auto left = std::span(left_).subspan(frame % left_.size(), blockFrames_);
            const auto right = std::span(right_).subspan(frame % left_.size(), blockFrames_);
            peak = std::max(peak,
                fast_ ? fast_->render(state_, settings, left, right)
                      : renderPlain(state_, settings, left, right));
        }
        return peak;
    }

    /// Whether both produced the same samples and reached the same gains.
    [[nodiscard]] bool isSameAs(const RenderRun& other) const
    {
        return left_ == other.left_ && right_ == other.right_ && state_.gain == other.state_.gain
            && state_.duck == other.state_.duck && state_.limiter == other.state_.limiter;
    }

private:
    static constexpr double sampleRate = 48000;

    static std::vector<float> gainsOf(const RenderCase& which)
    {
        std::vector<float> gains(eqBandCount);
        for (std::size_t band = 0; band < which.bands.value_or(0); ++band)
            gains[(3 * band + 2) % gains.size()] = band % 2 == 0 ? -3.0F : 4.0F;
        return gains;
    }

    const RenderCase& case_;
    std::size_t blockFrames_;
    std::vector<float> originalLeft_;
    std::vector<float> originalRight_;
    std::vector<float> left_;
    std::vector<float> right_;
    EQCoefficients sections_;
    RenderState state_{
        .gain = {.coefficient = onePoleCoefficient(sampleRate, 0.02)},
        .duck = {.coefficient = onePoleCoefficient(sampleRate, 0.3)},
        .limiter = {.release = onePoleCoefficient(sampleRate, 0.08)},
    };
    std::optional<FastRender> fast_;
};

}  // namespace fadeloom
