// SPDX-License-Identifier: MIT
// Log messages about taps, and the key that identifies a failed attempt.
#pragma once

#include "engine/AppTap.h"
#include "platform/AudioProcess.h"

#include <span>
#include <string>
#include <string_view>

namespace fadeloom {

/// Equal exactly for attempts with the same processes on the same output: "[412, 415]|uid".
[[nodiscard]] std::string failureKey(std::span<const AudioProcessID> processIDs, std::string_view outputUID);

[[nodiscard]] std::string tapReadyText(std::string_view bundleID, const AppTap& tap);
[[nodiscard]] std::string tapUpdatedText(std::string_view bundleID, const AppTap& tap);

/// The shortest decimal representation that reads back the same, always with a fractional part: "48000.0". Not
/// localized.
[[nodiscard]] std::string decimalText(double value);

}  // namespace fadeloom
