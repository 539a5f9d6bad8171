// SPDX-License-Identifier: MIT
// The desktop's appearance preferences for all programs.
#pragma once

#include <cstdint>
#include <optional>

namespace fadeloom {

struct DesktopAppearance {
    bool isDark = false;
    bool reducesMotion = false;
    bool hasHighContrast = false;
    double textScale = 1;  // Relative to the normal size.
    // The accent colour as 0xRRGGBB; nullopt if each program uses its own.
    std::optional<std::uint32_t> accent{};

    bool operator==(const DesktopAppearance&) const = default;
};

}  // namespace fadeloom
