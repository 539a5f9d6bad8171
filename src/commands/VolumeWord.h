// SPDX-License-Identifier: MIT
// Parses volumes as typed by the user.
//
//     0.5  50%  =-6dB           a level; 1 is 0 dB, the app's own level
//     +5%  5%-  -3dB  +0.05     a step from the current level
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
    /// The resulting volume, as a linear factor. `present` is the base of a step, which is clamped to 0 and `limit`.
    [[nodiscard]] float from(float present, float limit) const;

private:
    enum class Unit { factor, percent, decibels };

    float amount_ = 0;
    Unit unit_ = Unit::factor;
    bool isStep_ = false;
};

}  // namespace fadeloom
