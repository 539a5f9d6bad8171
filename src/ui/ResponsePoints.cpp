// SPDX-License-Identifier: MIT
#include "ui/ResponsePoints.h"

#include "engine/EqualizerDesign.h"

#include <algorithm>
#include <cmath>

namespace fadeloom {

std::array<double, responsePointCount> responsePoints(std::span<const float> gains, double preamp)
{
    constexpr double sampleRate = 48000;
    constexpr double lowest = 20;  // Hertz.
    constexpr double span = 1000;  // The ratio of the highest to the lowest.
    const auto coefficients = eqCoefficients(gains, sampleRate);
    std::array<double, responsePointCount> points{};
    for (int i = 0; i < responsePointCount; ++i) {
        const double frequency = lowest * std::pow(span, i / double{responsePointCount - 1});
        points.at(static_cast<std::size_t>(i)) = preamp + eqResponseDB(coefficients, frequency, sampleRate);
    }
    return points;
}

double responseY(double decibels, double height)
{
    const double middle = height / 2;
    return middle - std::clamp(decibels, -responseRangeDB, responseRangeDB) / responseRangeDB * middle;
}

}  // namespace fadeloom
