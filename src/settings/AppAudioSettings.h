// SPDX-License-Identifier: MIT
// The settings of one application.
#pragma once

#include "engine/EqualizerDesign.h"

#include <array>
#include <optional>
#include <string>

namespace fadeloom {

struct AppAudioSettings {
    float volume = 1;  // Linear, 0 to 2.
    bool muted = false;
    std::optional<std::string> outputUID{};  // Absent: follow the system's default output.
    bool eqEnabled = false;
    std::optional<std::string> eqPresetName = "Flat";  // Absent: the gains were set by hand.
    std::array<float, eqBandCount> eqGains{};  // Decibels, −12 to 12, lowest band first.
    float eqPreamp = 0;  // Decibels, −12 to 12.

    friend bool operator==(const AppAudioSettings&, const AppAudioSettings&) = default;
};

}  // namespace fadeloom
