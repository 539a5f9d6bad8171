// SPDX-License-Identifier: MIT
// The program as a windowed application.
#pragma once

#include <cstdint>
#include <string>

namespace fadeloom {

/// The credits of the About panel, centred under the program's name, icon and version: the text, and below it a link.
struct AboutCredits {
    std::string text;
    std::string linkText;
    std::string linkURL;
};

/// Thread: main.
class Application {
public:
    /// `system` follows the system's setting, including later changes.
    enum class Appearance : std::uint8_t { system, light, dark };

    virtual ~Application() = default;

    /// Sets the appearance of all windows from now on.
    virtual void setAppearance(Appearance appearance) = 0;
    /// Raises its windows.
    virtual void activate() = 0;
    /// Opens the About panel, or raises an open one.
    virtual void showAboutPanel(const AboutCredits& credits) = 0;
};

}  // namespace fadeloom
