// SPDX-License-Identifier: MIT
// An output device.
#pragma once

#include <cstdint>
#include <string>

namespace fadeloom {

/// Never reused while the program runs; 0 for none. A device that is replugged, or whose channels change, gets a new
/// one.
using OutputDeviceID = std::uint32_t;

/// A connected output device. `uid` is stable across replugging, `id` is not.
struct OutputDevice {
    OutputDeviceID id = 0;
    std::string uid{};
    std::string name{};

    friend bool operator==(const OutputDevice&, const OutputDevice&) = default;
};

/// The left and right channels of a device, numbered from 1. On a mono device both are the same.
struct StereoChannels {
    std::uint32_t left = 1;
    std::uint32_t right = 2;

    friend bool operator==(const StereoChannels&, const StereoChannels&) = default;
};

}  // namespace fadeloom
