// SPDX-License-Identifier: MIT
// The program as an application with windows.
#pragma once

#include <cstdint>

namespace fadeloom {

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
};

}  // namespace fadeloom
