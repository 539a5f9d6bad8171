// SPDX-License-Identifier: MIT
#include "app/ControlProgram.h"

#include <unistd.h>

#include <filesystem>
#include <iostream>
#include <system_error>

namespace fadeloom {

int execControl(char** arguments)
{
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    const auto beside = program.parent_path() / "fadeloomctl";
    if (!error)
        execv(beside.c_str(), arguments);
    execvp("fadeloomctl", arguments);
    std::cerr << "fadeloom: fadeloomctl, which gives commands, is not installed\n";
    return 1;
}

}  // namespace fadeloom
