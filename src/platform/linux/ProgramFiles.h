// SPDX-License-Identifier: MIT
// Programs as files: which file is one, where a name leads, and which one we are.
#pragma once

#include "platform/linux/Variables.h"

#include <filesystem>
#include <string>
#include <vector>

namespace fadeloom {

/// Whether it is a regular file that this process may execute.
[[nodiscard]] bool isProgram(const std::filesystem::path& file);

/// The program that the first word of a command means: a file by its absolute path, else the first of that name in
/// `folders`. Empty for none.
[[nodiscard]] std::filesystem::path findProgram(
    const std::string& name, const std::vector<std::filesystem::path>& folders);

/// The executable of this process; empty when the system does not tell.
[[nodiscard]] std::filesystem::path ownExecutable();

/// The file by which `executable`, this process's own, is started again: the AppImage that it was unpacked from for as
/// long as it runs, else itself.
[[nodiscard]] std::filesystem::path startedFile(
    const Variables& variables, const std::filesystem::path& executable = ownExecutable());

/// How a program is started.
struct StartCommand {
    std::filesystem::path program;
    std::vector<std::string> arguments;  // Without the program itself.
};

/// That of this process, as it was started.
[[nodiscard]] StartCommand ownCommand();

}  // namespace fadeloom
