// SPDX-License-Identifier: MIT
// Gains as the panel takes and writes them, in decibels.
#pragma once

#include "engine/EqualizerDesign.h"

#include <QString>

namespace fadeloom {

/// What a slider at `value` stores: a whole number from −12 to 12.
[[nodiscard]] float wholeGain(double value);

/// "0 dB", "+3 dB", "-4 dB".
[[nodiscard]] QString decibelText(double gain);
/// "3 decibels", for those who hear the panel.
[[nodiscard]] QString spokenDecibels(double gain);

/// What stands under a band: "32" … "16k".
[[nodiscard]] QString bandLabel(int band);
/// "1k Hz: +3 dB".
[[nodiscard]] QString bandHelp(int band, double gain);
/// "1k hertz", for those who hear the panel.
[[nodiscard]] QString spokenBand(int band);

}  // namespace fadeloom
