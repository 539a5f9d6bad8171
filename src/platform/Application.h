// SPDX-License-Identifier: MIT
// The program as an application with windows.
#pragma once

#include <cstdint>
#include <string>

namespace fadeloom {

/// What the About panel says under the program's name, icon and version, centred: the text, and under it a link.
struct AboutCredits {
    std::string text;
    std::string linkText;
    std::string linkURL;
};

/// Thread: main.
class Application {
public:
    /// `system` follows the system's choice, also when that changes.
    enum class Appearance : std::uint8_t { system, light, dark };

    virtual ~Application() = default;

    /// How all windows are drawn from now on.
    virtual void setAppearance(Appearance appearance) = 0;
    /// Brings its windows to the front.
    virtual void activate() = 0;
    /// Opens the About panel; one that is open comes to the front.
    virtual void showAboutPanel(const AboutCredits& credits) = 0;
};

}  // namespace fadeloom
