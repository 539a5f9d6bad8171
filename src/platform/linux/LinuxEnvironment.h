// SPDX-License-Identifier: MIT
// Where a Linux session keeps processes, desktop entries and programs, and its languages.
#pragma once

#include "platform/linux/Variables.h"

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <vector>

namespace fadeloom {

/// A value type; tests construct one with their own folders.
struct LinuxEnvironment {
    std::filesystem::path processes = "/proc";
    std::vector<std::filesystem::path> applicationFolders;  // Of desktop entries, by precedence.
    std::vector<std::filesystem::path> programFolders;  // The search path for programs.
    std::vector<std::string> languages;  // Keys of localised texts, in order of preference: "pl_PL", "pl".
    uid_t user = 0;  // The user whose processes count.
};

/// That of this process. Includes the folders of Flatpak and Snap even if the session does not list them.
[[nodiscard]] LinuxEnvironment linuxEnvironment(const Variables& variables);

/// The keys of localised texts for a locale's name ("pl_PL.UTF-8@euro"), in order of preference; empty for "C".
[[nodiscard]] std::vector<std::string> languageKeys(const std::string& locale);

}  // namespace fadeloom
