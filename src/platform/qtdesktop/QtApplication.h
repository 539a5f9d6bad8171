// SPDX-License-Identifier: MIT
// The program's windows as a whole.
#pragma once

#include "platform/Application.h"

#include <functional>
#include <utility>

namespace fadeloom {

/// Needs a QGuiApplication. Thread: main.
class QtApplication final : public Application {
public:
    /// `changed` hears of each choice, so that what Qt does not draw follows it as well.
    explicit QtApplication(std::function<void(Appearance)> changed)
        : changed_(std::move(changed))
    {
    }

    void setAppearance(Appearance appearance) override;
    /// Wayland and most window managers let no program come to the front by itself: its windows ask when they open.
    void activate() override { }

private:
    std::function<void(Appearance)> changed_;
};

}  // namespace fadeloom
