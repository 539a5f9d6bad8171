// SPDX-License-Identifier: MIT
#include "platform/linux/AutostartLoginItem.h"

#include "base/AtomicFile.h"
#include "platform/linux/BoundedFile.h"
#include "platform/linux/DesktopEntry.h"
#include "platform/linux/LinuxEnvironment.h"
#include "platform/linux/XdgFolders.h"

#include <system_error>
#include <utility>

namespace fadeloom {

namespace {

namespace fs = std::filesystem;

std::string entryText(const fs::path& program)
{
    constexpr auto firstKeys = "[Desktop Entry]\n"
                               "Type=Application\n"
                               "Name=Fadeloom\n"
                               "Comment=Volume, output and equalizer for every application\n"
                               "Icon=com.fadeloom.app\n"
                               "Terminal=false\n"
                               "X-GNOME-Autostart-enabled=true\n";
    return firstKeys + ("Exec=" + execValue(program.native())) + "\n";
}

std::unexpected<FileError> failed(FileError::Step step, const fs::path& file, std::error_code error)
{
    return std::unexpected(FileError{.step = step, .file = file, .reason = error});
}

}  // namespace

AutostartLoginItem::AutostartLoginItem(const Variables& variables, fs::path program)
    : entry_(XdgFolders{variables}.applicationSupport() / "autostart" / "com.fadeloom.app.desktop")
    , program_(std::move(program))
    , programFolders_(linuxEnvironment(variables).programFolders)
{
}

LoginItem::Status AutostartLoginItem::status() const
{
    const auto text = readBoundedFile(entry_, longestDesktopEntry);
    const auto entry = text ? parseDesktopEntry(*text, {}) : std::nullopt;
    if (!entry || !entry->isApplication || entry->isHidden || !entry->startsAtLogin)
        return Status::notRegistered;
    const auto isThere = [this](const std::string& program) {
        return !findProgram(program, programFolders_).empty();
    };
    if (!entry->tryExec.empty() && !isThere(entry->tryExec))
        return Status::notFound;
    return !entry->command.empty() && isThere(entry->command.front()) ? Status::enabled : Status::notFound;
}

std::expected<void, LoginItemError> AutostartLoginItem::registerItem()
{
    if (program_.empty())
        return std::unexpected(ProgramUnknown{});
    std::error_code error;
    const auto folder = entry_.parent_path();
    fs::create_directories(folder, error);
    if (error)
        return failed(FileError::Step::createFolder, folder, error);
    // A link to the null device masks an entry. It is enabled by removing it, because nothing can be written through
    // it.
    if (fs::is_character_file(entry_, error))
        fs::remove(entry_, error);
    if (const auto replaced = AtomicFile::replace(entry_, entryText(program_)); !replaced)
        return std::unexpected(replaced.error());
    return {};
}

std::expected<void, LoginItemError> AutostartLoginItem::unregisterItem()
{
    std::error_code error;
    fs::remove(entry_, error);
    if (error && error != std::errc::not_a_directory)
        return failed(FileError::Step::remove, entry_, error);
    return {};
}

}  // namespace fadeloom
