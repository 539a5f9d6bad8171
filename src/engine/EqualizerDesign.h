// SPDX-License-Identifier: MIT
// The ten-band graphic equalizer: bands, filter design, response.
//
// Each band is a peaking filter; the ten are in series. Design runs on the main thread; the renderer runs the sections.
#pragma once

#include <array>
#include <span>

namespace fadeloom {

/// One second-order section, (b0 + b1/z + b2/z²) / (1 + a1/z + a2/z²). Default-constructed it is the identity.
struct BiquadCoefficients {
    double b0 = 1;
    double b1 = 0;
    double b2 = 0;
    double a1 = 0;
    double a2 = 0;

    friend bool operator==(const BiquadCoefficients&, const BiquadCoefficients&) = default;
};

inline constexpr int eqBandCount = 10;

/// Centre frequencies in hertz. All lists of gains in the program have this order.
inline constexpr std::array<double, eqBandCount> eqBandFrequencies = {
    32, 64, 125, 250, 500, 1000, 2000, 4000, 8000, 16000};

/// The range of a band's gain is minus this to plus this.
inline constexpr float eqMaximumGainDB = 12;

using EQCoefficients = std::array<BiquadCoefficients, eqBandCount>;

/// The state of the ten sections of one channel.
struct EQChannelState {
    std::array<double, eqBandCount> z1{};
    std::array<double, eqBandCount> z2{};

    friend bool operator==(const EQChannelState&, const EQChannelState&) = default;
};

/// Designs the ten sections. `gains`: decibels, lowest band first, clamped to ±12; bands without a gain are flat.
/// `sampleRate`: hertz. A flat band, and one too close to the Nyquist frequency, becomes the identity section.
[[nodiscard]] EQCoefficients eqCoefficients(std::span<const float> gains, double sampleRate);

/// The total gain of the ten sections at `frequency` (hertz), in decibels.
[[nodiscard]] double eqResponseDB(const EQCoefficients& coefficients, double frequency, double sampleRate);

}  // namespace fadeloom
