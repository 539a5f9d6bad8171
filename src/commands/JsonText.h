// SPDX-License-Identifier: MIT
// The JSON that other programs read: one spelling of keys for answers and events. For this folder's sources; no header
// of ours that others see has it.
#pragma once

#include "settings/AppAudioSettings.h"
#include "settings/FloatJson.h"

#include <string>

namespace fadeloom {

/// In one line. Bytes that are not UTF-8 become replacement characters.
[[nodiscard]] std::string jsonLine(const FloatJson& json);
/// {"volume":0.5,"muted":false,"outputUID":null,"eq":false,"preset":"Flat","gains":[...],"preamp":0}
[[nodiscard]] FloatJson appSettingsJson(const AppAudioSettings& app);

}  // namespace fadeloom
