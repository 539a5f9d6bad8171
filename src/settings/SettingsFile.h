// SPDX-License-Identifier: MIT
// The settings file: where it is, how it is read, how it is written.
#pragma once

#include "settings/SettingsData.h"
#include "settings/SettingsError.h"

#include <expected>
#include <filesystem>

namespace fadeloom {

class StandardFolders;
class SystemLog;

/// Without state. Thread: any; saves of one file one at a time.
namespace SettingsFile {

[[nodiscard]] std::filesystem::path defaultURL(const StandardFolders& folders);

/// Never fails. A file that cannot be read, most often because there is none yet, gives the defaults. One that can be
/// read but not understood gives them as well; it is copied to a backup beside it, in place of any older one, before
/// the next save overwrites it, and `log` gets one line.
[[nodiscard]] SettingsData load(const std::filesystem::path& file, SystemLog& log);

/// Replaces the file, and makes the folders above it. After an error the file is as it was.
[[nodiscard]] std::expected<void, SettingsError> save(
    const SettingsData& settings, const std::filesystem::path& file);

}  // namespace SettingsFile

}  // namespace fadeloom
