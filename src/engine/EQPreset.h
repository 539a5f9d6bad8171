// SPDX-License-Identifier: MIT
// A named curve of the equalizer.
#pragma once

#include <string>
#include <vector>

namespace fadeloom {

/// The name is what tells presets apart. `gains`: decibels, lowest band first; ten in every preset that is offered.
struct EQPreset {
    std::string name{};
    std::vector<float> gains{};

    friend bool operator==(const EQPreset&, const EQPreset&) = default;
};

}  // namespace fadeloom
