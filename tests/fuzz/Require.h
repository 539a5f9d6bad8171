// SPDX-License-Identifier: MIT
// Invariants for all inputs.
#pragma once

#include <cstdio>
#include <cstdlib>

inline void require(bool isTrue, const char* what)
{
    if (isTrue)
        return;
    std::fprintf(stderr, "Not so: %s\n", what);
    std::abort();
}
