// SPDX-License-Identifier: MIT
// The calls to the doubles, in order.
#pragma once

#include <string>
#include <vector>

namespace doubles {

/// Of the whole test program; cleared before each test.
inline std::vector<std::string>& journal()
{
    static std::vector<std::string> lines;
    return lines;
}

inline void note(std::string line)
{
    journal().push_back(std::move(line));
}

}  // namespace doubles
