// SPDX-License-Identifier: MIT
// The current state, as one line of JSON.
#pragma once

#include <span>
#include <string>

namespace fadeloom {

class AudioController;

/// The contents of a list.
enum class Listing { everything, apps, outputs, presets };

/// {"default":"speakers","limit":1,"callApp":null,"apps":[...],"outputs":[...],"presets":[...]}, or one of these lists.
[[nodiscard]] std::string listJson(const AudioController& controller, Listing listing);
/// {"apps":[...]} with only these apps.
[[nodiscard]] std::string appsJson(const AudioController& controller, std::span<const std::string> ids);
/// The complete state, as the first event of a stream.
[[nodiscard]] std::string stateEventJson(const AudioController& controller);
/// All settings, with non-ASCII characters escaped. decodeSettings reads it.
[[nodiscard]] std::string settingsLine(const AudioController& controller);

}  // namespace fadeloom
