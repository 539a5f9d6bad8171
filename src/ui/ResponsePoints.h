// SPDX-License-Identifier: MIT
// The equalizer's response as points of a curve.
#pragma once

#include <array>
#include <span>

namespace fadeloom {

inline constexpr int responsePointCount = 97;
/// A curve shows from minus this to plus this, in decibels.
inline constexpr double responseRangeDB = 15;

/// Decibels at frequencies evenly spaced by ear, from 20 Hz to 20 kHz. `gains` and `preamp`: decibels.
[[nodiscard]] std::array<double, responsePointCount> responsePoints(
    std::span<const float> gains, double preamp);

/// How far down from the top of a canvas `height` high a value stands; beyond the range at the edge.
[[nodiscard]] double responseY(double decibels, double height);

}  // namespace fadeloom
