// SPDX-License-Identifier: MIT
// The size of a terminal.
#pragma once

#include <optional>

namespace fadeloom {

struct TerminalSize {
    int columns = 80;
    int lines = 24;
};

/// The size of the terminal behind a file descriptor, or a default if it does not report one; nullopt for anything that
/// is not a terminal.
[[nodiscard]] std::optional<TerminalSize> terminalSize(int descriptor);

}  // namespace fadeloom
