// SPDX-License-Identifier: MIT
#include "settings/AppearanceSettings.h"

#include <utility>

namespace fadeloom {

std::string_view themeText(Theme theme)
{
    switch (theme) {
    case Theme::system:
        return "system";
    case Theme::light:
        return "light";
    case Theme::dark:
        return "dark";
    }
    std::unreachable();
}

std::optional<Theme> themeOf(std::string_view text)
{
    for (const auto theme : allThemes) {
        if (themeText(theme) == text)
            return theme;
    }
    return std::nullopt;
}

}  // namespace fadeloom
