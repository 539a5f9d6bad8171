// SPDX-License-Identifier: MIT
// What the desktop asks of the look of every program.
#pragma once

#include <cstdint>
#include <optional>

namespace fadeloom {

struct DesktopLook {
    bool isDark = false;
    bool reducesMotion = false;
    bool hasHighContrast = false;
    double textScale = 1;  // Of the usual size.
    // The user's favourite colour as 0xRRGGBB; absent for each program's own.
    std::optional<std::uint32_t> accent{};

    bool operator==(const DesktopLook&) const = default;
};

}  // namespace fadeloom
