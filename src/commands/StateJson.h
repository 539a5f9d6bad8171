// SPDX-License-Identifier: MIT
// How things stand, as JSON in one line.
#pragma once

#include <span>
#include <string>

namespace fadeloom {

class AudioController;

/// What a list is of.
enum class Listing { everything, apps, outputs, presets };

/// {"default":"speakers","limit":1,"callApp":null,"apps":[...],"outputs":[...],"presets":[...]}, or one of these lists.
[[nodiscard]] std::string listJson(const AudioController& controller, Listing listing);
/// {"apps":[...]} of these apps.
[[nodiscard]] std::string appsJson(const AudioController& controller, std::span<const std::string> ids);
/// The whole state as the first event of a stream.
[[nodiscard]] std::string stateEventJson(const AudioController& controller);
/// All settings; what is not ASCII is escaped. decodeSettings reads it.
[[nodiscard]] std::string settingsLine(const AudioController& controller);

}  // namespace fadeloom
