// SPDX-License-Identifier: MIT
// A named equalizer curve.
#pragma once

#include <string>
#include <vector>

namespace fadeloom {

/// Presets are identified by name. `gains`: decibels, lowest band first; built-in and saved presets have ten.
struct EQPreset {
    std::string name{};
    std::vector<float> gains{};

    friend bool operator==(const EQPreset&, const EQPreset&) = default;
};

}  // namespace fadeloom
