// SPDX-License-Identifier: MIT
// Whether there is room for the files that a tap needs.
#pragma once

#include <cstddef>
#include <optional>

namespace fadeloom {

/// What one tap takes: twelve that libpipewire opens for a node with its four ports and their links, eventfds and shared
/// memory that the server hands over one by one, and the pidfd of the application's process.
inline constexpr std::size_t filesOfTap = 13;
/// What is kept free for everything else: a connection that cannot take what the server hands over is lost.
inline constexpr std::size_t filesInReserve = 16;

/// What taps take is known before it is there: the server hands their files over a moment after they are made, when
/// the next ones may be made already. Thread: main.
class FilesOfTaps {
public:
    /// The process's limit of open files, if it leaves no room for one more tap beside the `taps` that there are.
    [[nodiscard]] std::optional<std::size_t> limitWithoutRoom(std::size_t taps);

private:
    std::size_t besidesTaps_ = 0;  // Counted when there was no tap.
};

}  // namespace fadeloom
