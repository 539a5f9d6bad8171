// SPDX-License-Identifier: MIT
// A start that is over before it has begun.
#pragma once

#include <iostream>
#include <string>

namespace fadeloom {

struct EarlyEnd {
    std::string message;
    int exitStatus = 0;
};

/// Says on standard error why; returns the exit status.
inline int endEarly(const EarlyEnd& end)
{
    std::cerr << "fadeloom: " << end.message << '\n';
    return end.exitStatus;
}

}  // namespace fadeloom
