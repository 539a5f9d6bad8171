// SPDX-License-Identifier: MIT
// Why settings cannot be read or written.
#pragma once

#include "base/FileError.h"

#include <cstddef>
#include <string>
#include <variant>

namespace fadeloom {

/// A text that does not parse as settings.
struct SettingsError {
    std::string description;  // In English, for the log.

    friend bool operator==(const SettingsError&, const SettingsError&) = default;
};

struct SettingsTooLarge {
    std::size_t maximumBytes = 0;

    friend bool operator==(const SettingsTooLarge&, const SettingsTooLarge&) = default;
};

/// Why the settings file cannot be read or replaced.
using SettingsFileError = std::variant<FileError, SettingsTooLarge>;

}  // namespace fadeloom
