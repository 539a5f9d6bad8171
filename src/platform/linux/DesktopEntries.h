// SPDX-License-Identifier: MIT
// The desktop entries of all installed applications, searchable by id and by program.
#pragma once

#include "platform/linux/DesktopEntry.h"
#include "platform/linux/LinuxEnvironment.h"
#include "platform/linux/ProcessProgram.h"

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace fadeloom {

class DesktopEntries {
public:
    /// Reads nothing yet. `environment` must outlive this.
    explicit DesktopEntries(const LinuxEnvironment& environment);

    /// Reads everything the first time, and again if an application was installed or removed since. Invalidates all
    /// pointers.
    void refresh();
    /// Null if there is none.
    [[nodiscard]] const DesktopEntry* withID(const std::string& id) const;
    /// The entry that starts this program: the one with its window class, for web apps; else of the same file, else of
    /// the same name. Among several, the one whose arguments match the process, else the simplest. Null if there is
    /// none.
    [[nodiscard]] const DesktopEntry* starting(const ProcessProgram& program) const;

private:
    using FolderTimes = std::map<std::filesystem::path, std::filesystem::file_time_type>;

    void readFolder(const std::filesystem::path& folder, const std::string& idPrefix, int depth);
    void readFile(const std::filesystem::path& file, const std::string& id);
    void index();
    [[nodiscard]] bool isCurrent() const;

    const LinuxEnvironment& environment_;
    FolderTimes folderTimes_;  // Of every folder that was read, and of missing ones.
    std::map<std::string, DesktopEntry> entries_;  // By id; includes hidden ones until everything is read.
    std::multimap<std::filesystem::path, const DesktopEntry*> byPath_;
    std::multimap<std::string, const DesktopEntry*> byName_;
    std::map<std::string, const DesktopEntry*> byWindowClass_;
    bool isRead_ = false;
};

}  // namespace fadeloom
