// SPDX-License-Identifier: MIT
// The header of a WAVE file that exceeds the 32-bit sizes of RIFF.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace fadeloom {

/// The layout before the samples of our files, in bytes:
///
///     RIFF  12   with the size of all that follows its first eight bytes
///     fmt   24   plain PCM
///     JUNK  36   padding, reserved for 64-bit sizes
///     data   8   with the size of the samples
using WaveHeader = std::array<std::byte, 80>;

/// The same file's header as RF64, of the same length, with the format chunk unchanged:
///
///     RF64  12   its size is in ds64
///     ds64  36   64-bit sizes of all that follows RF64's first eight bytes and of the samples; the number of frames
///     fmt   24
///     data   8   its size is in ds64
///
/// `fileSize`: in bytes, header included, whole frames of `bytesPerFrame`.
[[nodiscard]] WaveHeader rf64Header(
    const WaveHeader& riffHeader, std::uint64_t fileSize, std::uint32_t bytesPerFrame);

}  // namespace fadeloom
