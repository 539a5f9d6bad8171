// SPDX-License-Identifier: MIT
// The ten-band graphic equalizer: its bands, its design, its response.
//
// Each band is one bell filter; the ten run in series. Designing is main-thread work; the renderer runs the sections.
#pragma once

#include <array>
#include <span>

namespace fadeloom {

/// One second-order section, (b0 + b1/z + b2/z²) / (1 + a1/z + a2/z²). As made, it changes nothing.
struct BiquadCoefficients {
    double b0 = 1;
    double b1 = 0;
    double b2 = 0;
    double a1 = 0;
    double a2 = 0;

    friend bool operator==(const BiquadCoefficients&, const BiquadCoefficients&) = default;
};

inline constexpr int eqBandCount = 10;

/// Centre of each band in hertz. Every list of gains in the program has this order.
inline constexpr std::array<double, eqBandCount> eqBandFrequencies = {
    32, 64, 125, 250, 500, 1000, 2000, 4000, 8000, 16000};

/// A band's gain goes from minus this to plus this.
inline constexpr float eqMaximumGainDB = 12;

using EQCoefficients = std::array<BiquadCoefficients, eqBandCount>;

/// What the ten sections of one channel remember between samples.
struct EQChannelState {
    std::array<double, eqBandCount> z1{};
    std::array<double, eqBandCount> z2{};

    friend bool operator==(const EQChannelState&, const EQChannelState&) = default;
};

/// Designs the ten sections. `gains`: decibels, lowest band first, limited to ±12; bands without a gain are flat.
/// `sampleRate`: hertz. A flat band, and one too near half the sample rate, is the section that changes nothing.
[[nodiscard]] EQCoefficients eqCoefficients(std::span<const float> gains, double sampleRate);

/// Gain of all ten sections together at `frequency` (hertz), in decibels.
[[nodiscard]] double eqResponseDB(const EQCoefficients& coefficients, double frequency, double sampleRate);

}  // namespace fadeloom
