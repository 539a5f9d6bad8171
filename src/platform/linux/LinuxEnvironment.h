// SPDX-License-Identifier: MIT
// Where a Linux session keeps what the workspace reads: processes, desktop entries, programs, languages.
#pragma once

#include "platform/linux/Variables.h"

#include <filesystem>
#include <string>
#include <vector>

#include <sys/types.h>

namespace fadeloom {

/// A value; tests make one of their own folders.
struct LinuxEnvironment {
    std::filesystem::path processes = "/proc";
    std::vector<std::filesystem::path> applicationFolders;  // Of desktop entries, the most important first.
    std::vector<std::filesystem::path> programFolders;  // Where a program without a path is looked for.
    std::vector<std::string> languages;  // Keys of localised texts, best first: "pl_PL", "pl".
    uid_t user = 0;  // Whose processes count.
};

/// That of this process. The folders of Flatpak and Snap count even when the session forgot to name them.
[[nodiscard]] LinuxEnvironment linuxEnvironment(const Variables& variables);

/// The keys of localised texts for a locale's name ("pl_PL.UTF-8@euro"), best first; none for "C".
[[nodiscard]] std::vector<std::string> languageKeys(const std::string& locale);

}  // namespace fadeloom
