// SPDX-License-Identifier: MIT
#include "app/TerminalSize.h"

#include <sys/ioctl.h>
#include <unistd.h>

namespace fadeloom {

std::optional<TerminalSize> terminalSize(int descriptor)
{
    if (isatty(descriptor) == 0)
        return std::nullopt;
    winsize size{};
    if (ioctl(descriptor, TIOCGWINSZ, &size) != 0 || size.ws_col == 0 || size.ws_row == 0)
        return TerminalSize{};
    return TerminalSize{.columns = size.ws_col, .lines = size.ws_row};
}

}  // namespace fadeloom
