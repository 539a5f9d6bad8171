// SPDX-License-Identifier: MIT
// The settings file: where it is, how it is read, how it is written.
#pragma once

#include "settings/SettingsData.h"
#include "settings/SettingsError.h"

#include <expected>
#include <filesystem>
#include <optional>

namespace fadeloom {

class StandardFolders;
class SystemLog;

/// Without state. Thread: any; saves of one file one at a time.
namespace SettingsFile {

[[nodiscard]] std::filesystem::path defaultURL(const StandardFolders& folders);

struct Loaded {
    SettingsData settings;
    std::optional<SettingsFileError> unreadable;  // Why there may be settings that are not these.
};

/// Never fails. Where there is no file yet, the settings are the defaults. A file that can be read but not understood
/// gives them as well; it is copied to a backup beside it, in place of any older one, before the next save overwrites
/// it, and `log` gets one line. A file that is there and cannot be read gives them, too, with the reason: nothing may
/// be saved in its place.
[[nodiscard]] Loaded load(
    const std::filesystem::path& file, SystemLog& log, const DefaultCallApps& callApps = {});

/// Replaces the file, and makes the folders above it. Refuses what `load` would find too large, and to replace a file
/// that cannot be read. After an error the file is as it was.
[[nodiscard]] std::expected<void, SettingsFileError> save(
    const SettingsData& settings, const std::filesystem::path& file);

}  // namespace SettingsFile

}  // namespace fadeloom
