// SPDX-License-Identifier: MIT
// Input and display of volumes in the panel. A volume is a linear factor; 1 is the app's own level.
#pragma once

#include <QString>

namespace fadeloom {

/// The value stored for a slider position: exactly 1 within 0.04 of it, and never more than `limit`.
[[nodiscard]] float snappedVolume(double value, float limit);

/// "85%".
[[nodiscard]] QString percentText(double factor);
/// "85 percent", for screen readers.
[[nodiscard]] QString spokenPercent(double factor);

/// 85 for 0.85F, and likewise for every factor with few decimal places.
[[nodiscard]] double percentOf(float factor);

/// The duck level stored for a slider position: a multiple of 0.05 from 0 to 0.5.
[[nodiscard]] float steppedDuckLevel(double value);

}  // namespace fadeloom
