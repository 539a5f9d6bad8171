// SPDX-License-Identifier: MIT
// A start that is over before it has begun.
#pragma once

#include <string>

namespace fadeloom {

struct EarlyEnd {
    std::string message;
    int exitStatus = 0;
};

}  // namespace fadeloom
