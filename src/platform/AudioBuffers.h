// SPDX-License-Identifier: MIT
// The sample buffers of one IO cycle.
#pragma once

#include <cstdint>
#include <span>

namespace fadeloom {

/// 32-bit float samples, `channels` of them interleaved per frame. `data` may be null (a disabled stream), even if
/// `byteSize` is set.
struct AudioBuffer {
    std::uint32_t channels = 0;
    std::uint32_t byteSize = 0;
    void* data = nullptr;
};

/// The buffers of one direction in one IO cycle, in the device's stream order.
using AudioBuffers = std::span<const AudioBuffer>;

}  // namespace fadeloom
