// SPDX-License-Identifier: MIT
#include "settings/SettingsFile.h"

#include "base/AtomicFile.h"
#include "platform/StandardFolders.h"
#include "platform/SystemLog.h"
#include "settings/SettingsJson.h"

#include <optional>
#include <string>
#include <system_error>
#include <utility>

namespace fadeloom::SettingsFile {

namespace {

namespace fs = std::filesystem;

// For reading and writing. Thousands of apps take a tenth of this. Anything larger is not a settings file, and parsing
// it would take many times its size in memory.
constexpr std::size_t maximumSize = std::size_t{16} * 1024 * 1024;

SettingsTooLarge tooLarge()
{
    return {.maximumBytes = maximumSize};
}

/// Why the file must not be replaced: its content has not been read.
std::optional<SettingsFileError> reasonToKeep(
    const std::expected<std::string, AtomicFile::ReadError>& content)
{
    if (content || content.error().reason != AtomicFile::ReadError::Reason::unreadable)
        return std::nullopt;
    return content.error().error;
}

std::expected<SettingsData, SettingsError> decode(
    const std::expected<std::string, AtomicFile::ReadError>& content, const DefaultCallApps& callApps)
{
    if (!content)
        return std::unexpected(SettingsError{"larger than " + std::to_string(maximumSize) + " bytes"});
    return decodeSettings(*content, callApps);
}

fs::path backupOf(const fs::path& file)
{
    return file.parent_path() / (file.stem().string() + ".broken.json");
}

}  // namespace

fs::path defaultURL(const StandardFolders& folders)
{
    return folders.applicationSupport() / "Fadeloom" / "settings.json";
}

Loaded load(const fs::path& file, SystemLog& log, const DefaultCallApps& callApps)
{
    const auto content = AtomicFile::read(file, maximumSize);
    if (auto unreadable = reasonToKeep(content))
        return {.settings = defaultSettings(callApps), .unreadable = std::move(unreadable)};
    if (!content && content.error().reason == AtomicFile::ReadError::Reason::missing)
        return {.settings = defaultSettings(callApps), .unreadable = {}};
    auto settings = decode(content, callApps);
    if (settings)
        return {.settings = std::move(*settings), .unreadable = {}};

    const auto backup = backupOf(file);
    std::error_code ignored;
    fs::remove_all(backup, ignored);
    fs::copy_file(file, backup, ignored);
    log.write(SystemLog::Level::error,
        "Fadeloom: settings unreadable (" + settings.error().description + "), backup at " + backup.string());
    return {.settings = defaultSettings(callApps), .unreadable = {}};
}

std::expected<void, SettingsFileError> save(const SettingsData& settings, const fs::path& file)
{
    const auto folder = file.parent_path();
    std::error_code error;
    if (!folder.empty())
        fs::create_directories(folder, error);
    if (error)
        return std::unexpected(
            FileError{.step = FileError::Step::createFolder, .file = folder, .reason = error});
    const auto content = encodeSettings(settings);
    if (content.size() > maximumSize)
        return std::unexpected(tooLarge());
    // It may have become unreadable since it was loaded.
    if (auto unreadable = reasonToKeep(AtomicFile::read(file, maximumSize)))
        return std::unexpected(std::move(*unreadable));
    if (const auto replaced = AtomicFile::replace(file, content); !replaced)
        return std::unexpected(replaced.error());
    return {};
}

}  // namespace fadeloom::SettingsFile
