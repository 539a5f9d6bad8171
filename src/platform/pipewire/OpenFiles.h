// SPDX-License-Identifier: MIT
// Whether there are enough file descriptors for another tap.
#pragma once

#include <cstddef>
#include <optional>

namespace fadeloom {

/// The descriptors of one tap: twelve that libpipewire opens for a node with its four ports and their links, eventfds
/// and shared memory that the server sends one by one, and the pidfd of the application's process.
inline constexpr std::size_t filesOfTap = 13;
/// Reserve for everything else: a connection that cannot receive descriptors from the server is lost.
inline constexpr std::size_t filesInReserve = 16;

/// Predicts what taps will take: the server sends their descriptors a moment after they are created, possibly after the
/// next ones are created. Thread: main.
class DescriptorBudget {
public:
    /// The process's limit of open files, if it leaves no room for one more tap besides the existing `taps`.
    [[nodiscard]] std::optional<std::size_t> limitWithoutRoom(std::size_t taps);

private:
    std::size_t otherDescriptors_ = 0;  // Counted when there was no tap.
};

}  // namespace fadeloom
