// SPDX-License-Identifier: MIT
#include "engine/EqualizerDesign.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace fadeloom {

namespace {

// Twice the Q of a peaking filter, 1.41.
constexpr double twiceQ = 2.82;

// Above this fraction of the sample rate the response would be distorted by the proximity of the Nyquist frequency.
constexpr double highestCentre = 0.45;

BiquadCoefficients bell(double centre, float gainDB, double sampleRate)
{
    const double amplitude = std::pow(10.0, double{gainDB} / 40);
    const double omega = 2 * std::numbers::pi * centre / sampleRate;
    const double alpha = std::sin(omega) / twiceQ;
    const double a0 = 1 + alpha / amplitude;
    const double middle = -2 * std::cos(omega) / a0;
    return {
        .b0 = (1 + alpha * amplitude) / a0,
        .b1 = middle,
        .b2 = (1 - alpha * amplitude) / a0,
        .a1 = middle,
        .a2 = (1 - alpha / amplitude) / a0,
    };
}

}  // namespace

EQCoefficients eqCoefficients(std::span<const float> gains, double sampleRate)
{
    EQCoefficients coefficients{};
    if (!(sampleRate > 0) || !std::isfinite(sampleRate))
        return coefficients;

    for (std::size_t band = 0; band < std::min(gains.size(), coefficients.size()); ++band) {
        // A NaN gain is treated as flat: one such section would silence the app for as long as it plays.
        if (std::isnan(gains[band]))
            continue;
        const float gain = std::clamp(gains[band], -eqMaximumGainDB, eqMaximumGainDB);
        const double centre = eqBandFrequencies[band];
        if (gain != 0 && centre < highestCentre * sampleRate)
            coefficients[band] = bell(centre, gain, sampleRate);
    }
    return coefficients;
}

double eqResponseDB(const EQCoefficients& coefficients, double frequency, double sampleRate)
{
    const double w = 2 * std::numbers::pi * frequency / sampleRate;
    const double cos1 = std::cos(w);
    const double cos2 = std::cos(2 * w);
    const double sin1 = std::sin(w);
    const double sin2 = std::sin(2 * w);

    double decibels = 0;
    for (const auto& section : coefficients) {
        const double zeroReal = section.b0 + section.b1 * cos1 + section.b2 * cos2;
        const double zeroImaginary = section.b1 * sin1 + section.b2 * sin2;
        const double poleReal = 1 + section.a1 * cos1 + section.a2 * cos2;
        const double poleImaginary = section.a1 * sin1 + section.a2 * sin2;
        const double power = (zeroReal * zeroReal + zeroImaginary * zeroImaginary)
            / (poleReal * poleReal + poleImaginary * poleImaginary);
        // 20·log10 of the magnitude, which is the square root of the power.
        decibels += 10 * std::log10(power);
    }
    return decibels;
}

}  // namespace fadeloom
