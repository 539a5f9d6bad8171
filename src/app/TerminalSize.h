// SPDX-License-Identifier: MIT
// How much a terminal shows.
#pragma once

#include <optional>

namespace fadeloom {

struct TerminalSize {
    int columns = 80;
    int lines = 24;
};

/// The size of the terminal behind a file descriptor, the usual one when it does not say; absent for anything that
/// is no terminal.
[[nodiscard]] std::optional<TerminalSize> terminalSize(int descriptor);

}  // namespace fadeloom
