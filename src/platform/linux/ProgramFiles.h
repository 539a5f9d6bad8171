// SPDX-License-Identifier: MIT
// Executable files: lookup by name, and our own.
#pragma once

#include "platform/linux/Variables.h"

#include <filesystem>
#include <string>
#include <vector>

namespace fadeloom {

/// Whether it is a regular file that this process may execute.
[[nodiscard]] bool isProgram(const std::filesystem::path& file);

/// Resolves the first word of a command: a file by its absolute path, else the first of that name in `folders`. Empty
/// if there is none.
[[nodiscard]] std::filesystem::path findProgram(
    const std::string& name, const std::vector<std::filesystem::path>& folders);

/// The executable of this process; empty if the system does not report it.
[[nodiscard]] std::filesystem::path ownExecutable();

/// The file with which `executable`, this process's own, is restarted: the AppImage that contains it while that runs,
/// else itself.
[[nodiscard]] std::filesystem::path startedFile(
    const Variables& variables, const std::filesystem::path& executable = ownExecutable());

/// How to start a program.
struct StartCommand {
    std::filesystem::path program;
    std::vector<std::string> arguments;  // Without the program itself.
};

/// The one that started this process.
[[nodiscard]] StartCommand ownCommand();

}  // namespace fadeloom
