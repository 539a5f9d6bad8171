// SPDX-License-Identifier: MIT
// What the doubles were asked to do, in the order in which they were asked.
#pragma once

#include <string>
#include <vector>

namespace doubles {

/// Of the whole test program; each test begins with an empty one.
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
