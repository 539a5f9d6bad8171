// SPDX-License-Identifier: MIT
// Settings as JSON text.
//
// Reading tolerates what manual edits or other versions may leave behind: missing and unknown keys, numbers out of
// range, a damaged app among valid ones. It does not tolerate a wrong type anywhere else, because the intention is
// unknown.
#pragma once

#include "settings/SettingsData.h"
#include "settings/SettingsError.h"

#include <expected>
#include <string>
#include <string_view>

namespace fadeloom {

/// Parses and repairs a record. Accepts arbitrary bytes. A list of call apps that is missing, or equals the former
/// default, becomes the current default. Thread: any.
[[nodiscard]] std::expected<SettingsData, SettingsError> decodeSettings(
    std::string_view text, const DefaultCallApps& defaults = {});

/// Serializes a record, one member per line, sorted keys; equal records give equal bytes. What JSON cannot represent is
/// replaced: a non-finite number by its default, invalid UTF-8 by replacement characters. Thread: any.
[[nodiscard]] std::string encodeSettings(const SettingsData& settings);

}  // namespace fadeloom
