// SPDX-License-Identifier: MIT
// A device that sound can be sent to.
#pragma once

#include <cstdint>
#include <string>

namespace fadeloom {

/// Never reused while the program runs; 0 for none. A device that is unplugged and plugged in again, or whose channels
/// change, gets another one.
using OutputDeviceID = std::uint32_t;

/// One output device as it is connected now. `uid` survives unplugging, `id` does not.
struct OutputDevice {
    OutputDeviceID id = 0;
    std::string uid{};
    std::string name{};

    friend bool operator==(const OutputDevice&, const OutputDevice&) = default;
};

/// Which channels of a device carry left and right, numbered from 1. A mono device names one channel twice.
struct StereoChannels {
    std::uint32_t left = 1;
    std::uint32_t right = 2;

    friend bool operator==(const StereoChannels&, const StereoChannels&) = default;
};

}  // namespace fadeloom
