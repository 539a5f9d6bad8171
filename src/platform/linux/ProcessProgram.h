// SPDX-License-Identifier: MIT
// What a process runs: its executable, or the script that its interpreter was given.
#pragma once

#include "platform/linux/ProcessTable.h"

#include <filesystem>
#include <string>
#include <vector>

namespace fadeloom {

struct ProcessProgram {
    /// Empty when unknown.
    std::filesystem::path path{};
    /// Names without folders that the process goes by, the best first; never empty.
    std::vector<std::string> names{};
    /// What follows the program on its command line.
    std::vector<std::string> arguments{};
    bool isInterpreter = false;  // An interpreter that runs no script.

    /// Whether `name`, of a program without its folder, is one of the names. The system cuts one of them short.
    [[nodiscard]] bool isCalled(const std::string& name) const;
};

/// A known interpreter (a shell, Python, Perl, …) counts as the script that is the first argument which is no option,
/// so a player written in Python is not Python; given a command instead of a script ("-c"), it counts as itself.
[[nodiscard]] ProcessProgram programOf(const ProcessInfo& process);

}  // namespace fadeloom
