// SPDX-License-Identifier: MIT
// Why the program exits without starting.
#pragma once

#include <iostream>
#include <string>

namespace fadeloom {

/// Whether a start wants the panel of a running instance to open.
enum class OpenPanel { no, yes };

struct EarlyEnd {
    std::string message;
    int exitStatus = 0;
};

/// Prints the reason to standard error; returns the exit status.
inline int endEarly(const EarlyEnd& end)
{
    std::cerr << "fadeloom: " << end.message << '\n';
    return end.exitStatus;
}

}  // namespace fadeloom
