// SPDX-License-Identifier: MIT
// Volumes as they are typed.
//
//     0.5  50%  =-6dB           a level; 1 is 0 dB, the sound as the app plays it
//     +5%  5%-  -3dB  +0.05     a step from the present level
#pragma once

#include <expected>
#include <string>
#include <string_view>

namespace fadeloom {

/// A level, or a step. A signed word is a step, so a level below 0 dB begins with "=".
class VolumeWord {
public:
    /// The error is a sentence for the user, in English.
    [[nodiscard]] static std::expected<VolumeWord, std::string> parse(std::string_view word);

    [[nodiscard]] bool isStep() const { return isStep_; }
    /// The volume that is meant, as a linear factor. `present` counts for a step, which stops at 0 and at `limit`.
    [[nodiscard]] float from(float present, float limit) const;

private:
    enum class Unit { factor, percent, decibels };

    float amount_ = 0;
    Unit unit_ = Unit::factor;
    bool isStep_ = false;
};

}  // namespace fadeloom
