// SPDX-License-Identifier: MIT
// The program of a process: its executable, or the script that its interpreter runs.
#pragma once

#include "platform/linux/ProcessTable.h"

#include <filesystem>
#include <string>
#include <vector>

namespace fadeloom {

struct ProcessProgram {
    /// Empty if unknown.
    std::filesystem::path path{};
    /// File names by which the program may be known, the best first; never empty.
    std::vector<std::string> names{};
    /// The remaining arguments of the command line.
    std::vector<std::string> arguments{};
    bool isInterpreter = false;  // An interpreter without a script.

    /// Whether `name`, a program's file name, is one of the names. The system truncates one of them.
    [[nodiscard]] bool isCalled(const std::string& name) const;
};

/// For a known interpreter (a shell, Python, Perl, …) the program is the script, its first argument that is not an
/// option, so a player written in Python is not Python; given a command instead of a script ("-c"), it is the
/// interpreter itself.
[[nodiscard]] ProcessProgram programOf(const ProcessInfo& process);

}  // namespace fadeloom
