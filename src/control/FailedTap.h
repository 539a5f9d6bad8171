// SPDX-License-Identifier: MIT
// An attempt at a tap that failed; it is not repeated while all of this is as it was.
#pragma once

#include "platform/OutputDevice.h"

#include <string>

namespace fadeloom {

struct FailedTap {
    std::string key{};  // Of processes and output.
    OutputDeviceID device = 0;
    double rate = 0;

    friend bool operator==(const FailedTap&, const FailedTap&) = default;
};

}  // namespace fadeloom
