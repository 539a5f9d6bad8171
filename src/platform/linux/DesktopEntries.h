// SPDX-License-Identifier: MIT
// The desktop entries of all installed applications, found by id and by the program that they start.
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

    /// Reads everything at first, and again when an application has come or gone since. Ends all pointers.
    void refresh();
    /// Null for none.
    [[nodiscard]] const DesktopEntry* withID(const std::string& id) const;
    /// The entry that starts this program: the one whose window class it was given, as web apps are; else of the same
    /// file, else of the same name. Of several, the one whose arguments the process was given, else the plainest. Null
    /// for none.
    [[nodiscard]] const DesktopEntry* starting(const ProcessProgram& program) const;

private:
    using FolderTimes = std::map<std::filesystem::path, std::filesystem::file_time_type>;

    void readFolder(const std::filesystem::path& folder, const std::string& idPrefix, int depth);
    void readFile(const std::filesystem::path& file, const std::string& id);
    void index();
    [[nodiscard]] bool isCurrent() const;

    const LinuxEnvironment& environment_;
    FolderTimes folderTimes_;  // Of every folder that was read, and of those that were missing.
    std::map<std::string, DesktopEntry> entries_;  // By id; hidden ones until all is read.
    std::multimap<std::filesystem::path, const DesktopEntry*> byPath_;
    std::multimap<std::string, const DesktopEntry*> byName_;
    std::map<std::string, const DesktopEntry*> byWindowClass_;
    bool isRead_ = false;
};

}  // namespace fadeloom
