// SPDX-License-Identifier: MIT
// The equalizer's response as points of a curve.
#pragma once

#include <array>
#include <span>

namespace fadeloom {

inline constexpr int responsePointCount = 97;
/// The graph's range is plus and minus this, in decibels.
inline constexpr double responseRangeDB = 15;

/// Decibels at logarithmically spaced frequencies from 20 Hz to 20 kHz. `gains` and `preamp`: decibels.
[[nodiscard]] std::array<double, responsePointCount> responsePoints(
    std::span<const float> gains, double preamp);

/// The y coordinate of a value on a canvas of this height; clamped to the edges.
[[nodiscard]] double responseY(double decibels, double height);

}  // namespace fadeloom
