// SPDX-License-Identifier: MIT
// Settings of the panel's appearance.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace fadeloom {

enum class Theme { system, light, dark };

/// All themes, in the order in which they are presented.
inline constexpr std::array<Theme, 3> allThemes = {Theme::system, Theme::light, Theme::dark};

/// The text for a theme in the settings file.
[[nodiscard]] std::string_view themeText(Theme theme);
/// The theme for a text; nullopt for any other text.
[[nodiscard]] std::optional<Theme> themeOf(std::string_view text);

struct AppearanceSettings {
    Theme theme = Theme::system;
    bool glass = true;  // Translucent cards.
    bool animations = true;
    bool levelMeters = true;

    friend bool operator==(const AppearanceSettings&, const AppearanceSettings&) = default;
};

}  // namespace fadeloom
