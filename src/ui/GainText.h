// SPDX-License-Identifier: MIT
// Input and display of gains in the panel, in decibels.
#pragma once

#include "engine/EqualizerDesign.h"

#include <QString>

namespace fadeloom {

/// The value stored for a slider position: a whole number from −12 to 12.
[[nodiscard]] float wholeGain(double value);

/// "0 dB", "+3 dB", "-4 dB".
[[nodiscard]] QString decibelText(double gain);
/// "3 decibels", for screen readers.
[[nodiscard]] QString spokenDecibels(double gain);

/// The label under a band: "32" … "16k".
[[nodiscard]] QString bandLabel(int band);
/// "1k Hz: +3 dB".
[[nodiscard]] QString bandHelp(int band, double gain);
/// "1k hertz", for screen readers.
[[nodiscard]] QString spokenBand(int band);

}  // namespace fadeloom
