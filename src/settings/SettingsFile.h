// SPDX-License-Identifier: MIT
// The settings file: its location, reading and writing.
#pragma once

#include "settings/SettingsData.h"
#include "settings/SettingsError.h"

#include <expected>
#include <filesystem>
#include <optional>

namespace fadeloom {

class StandardFolders;
class SystemLog;

/// Stateless. Thread: any; one save per file at a time.
namespace SettingsFile {

[[nodiscard]] std::filesystem::path defaultURL(const StandardFolders& folders);

struct Loaded {
    SettingsData settings;
    std::optional<SettingsFileError> unreadable;  // Why existing settings may differ from these.
};

/// Never fails. A missing file gives the defaults. So does an invalid one, which is copied to a backup beside it,
/// replacing any older one, before the next save overwrites it, and `log` gets one line. An existing file that cannot
/// be read also gives the defaults, with the reason: it must not be replaced.
[[nodiscard]] Loaded load(
    const std::filesystem::path& file, SystemLog& log, const DefaultCallApps& callApps = {});

/// Replaces the file, and creates missing parent folders. Refuses a size that `load` would reject, and to replace a
/// file that cannot be read. After an error the file is unchanged.
[[nodiscard]] std::expected<void, SettingsFileError> save(
    const SettingsData& settings, const std::filesystem::path& file);

}  // namespace SettingsFile

}  // namespace fadeloom
