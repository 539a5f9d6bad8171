// SPDX-License-Identifier: MIT
// Volumes as the panel takes and writes them. A volume is a linear factor; 1 is the app's own level.
#pragma once

#include <QString>

namespace fadeloom {

/// What a slider at `value` stores: exactly 1 within 0.04 of it, and never more than `limit`.
[[nodiscard]] float snappedVolume(double value, float limit);

/// "85%".
[[nodiscard]] QString percentText(double factor);
/// "85 percent", for those who hear the panel.
[[nodiscard]] QString spokenPercent(double factor);

/// 85 for 0.85F, and so for every factor of a few places.
[[nodiscard]] double percentOf(float factor);

/// The duck level that a slider at `value` stores: a multiple of 0.05 from 0 to 0.5.
[[nodiscard]] float steppedDuckLevel(double value);

}  // namespace fadeloom
