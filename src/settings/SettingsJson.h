// SPDX-License-Identifier: MIT
// Settings as JSON text.
//
// Reading forgives what a hand edit or another version may leave behind: missing keys and unknown ones, numbers out of
// range, one damaged app among good ones. It does not forgive a value of the wrong type anywhere else, for then it is
// not known what was meant.
#pragma once

#include "settings/SettingsData.h"
#include "settings/SettingsError.h"

#include <expected>
#include <string>
#include <string_view>

namespace fadeloom {

/// Reads and repairs a record. Any bytes may come in. A list of call apps that is missing, or is the former default,
/// becomes the current default. Thread: any.
[[nodiscard]] std::expected<SettingsData, SettingsError> decodeSettings(
    std::string_view text, const DefaultCallApps& defaults = {});

/// Writes a record, one member per line, keys in order; the same record gives the same bytes. What JSON cannot say is
/// replaced: a number that is not finite by its default, bytes that are not UTF-8 by replacement characters.
/// Thread: any.
[[nodiscard]] std::string encodeSettings(const SettingsData& settings);

}  // namespace fadeloom
