// SPDX-License-Identifier: MIT
// JSON for other programs: the keys shared by replies and events. For this folder's sources; not exposed in public
// headers.
#pragma once

#include "settings/AppAudioSettings.h"
#include "settings/FloatJson.h"

#include <string>

namespace fadeloom {

/// On one line. Invalid UTF-8 becomes replacement characters.
[[nodiscard]] std::string jsonLine(const FloatJson& json);
/// {"volume":0.5,"muted":false,"outputUID":null,"eq":false,"preset":"Flat","gains":[...],"preamp":0}
[[nodiscard]] FloatJson appSettingsJson(const AppAudioSettings& app);

}  // namespace fadeloom
