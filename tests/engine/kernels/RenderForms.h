// SPDX-License-Identifier: MIT
// The plain and the fast implementation of the render path on the same input, compared bit for bit.
#pragma once

#include "engine/PlainRender.h"
#include "engine/kernels/FastRender.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace fadeloom {

/// One block of both channels.
struct StereoBlock {
    std::vector<float> left;
    std::vector<float> right;
};

class RenderForms {
public:
    /// Both start from this state.
    RenderForms(const RenderKernels& kernels, const RenderState& start)
        : plainState_(start)
        , fastState_(start)
        , fast_(kernels)
    {
    }

    /// Renders the block with both. Reports differences, if any.
    [[nodiscard]] std::optional<std::string> render(const RenderSettings& settings, const StereoBlock& block)
    {
        plain_ = block;
        fromFast_ = block;
        const float plainPeak = renderPlain(plainState_, settings, plain_.left, plain_.right);
        const float fastPeak = fast_.render(fastState_, settings, fromFast_.left, fromFast_.right);

        if (auto difference = differenceOf("left", plain_.left, fromFast_.left))
            return difference;
        if (auto difference = differenceOf("right", plain_.right, fromFast_.right))
            return difference;
        if (auto difference = differenceOf("peak", plainPeak, fastPeak))
            return difference;
        if (auto difference = differenceOf("gain", plainState_.gain.current, fastState_.gain.current))
            return difference;
        if (auto difference = differenceOf("duck", plainState_.duck.current, fastState_.duck.current))
            return difference;
        return differenceOf("reduction", plainState_.limiter.reduction, fastState_.limiter.reduction);
    }

    /// The last output of either implementation.
    [[nodiscard]] const StereoBlock& output() const { return fromFast_; }
    [[nodiscard]] const RenderState& plainState() const { return plainState_; }
    [[nodiscard]] const RenderState& fastState() const { return fastState_; }

private:
    static std::optional<std::string> differenceOf(const std::string& what, float plain, float fast)
    {
        if (std::bit_cast<std::uint32_t>(plain) == std::bit_cast<std::uint32_t>(fast))
            return std::nullopt;
        std::ostringstream text;
        text << what << ": plain " << std::hexfloat << plain << ", fast " << fast;
        return text.str();
    }
    static std::optional<std::string> differenceOf(
        const std::string& side, const std::vector<float>& plain, const std::vector<float>& fast)
    {
        for (std::size_t i = 0; i < plain.size(); ++i) {
            if (std::bit_cast<std::uint32_t>(plain[i]) != std::bit_cast<std::uint32_t>(fast[i]))
                return differenceOf(side + " sample " + std::to_string(i), plain[i], fast[i]);
        }
        return std::nullopt;
    }

    RenderState plainState_;
    RenderState fastState_;
    FastRender fast_;
    StereoBlock plain_;
    StereoBlock fromFast_;
};

}  // namespace fadeloom
