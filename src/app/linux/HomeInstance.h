// SPDX-License-Identifier: MIT
// One instance per session on Linux: a second start opens the first one's panel.
#pragma once

#include "app/ServedControl.h"
#include "app/linux/SecondStart.h"

#include <functional>
#include <memory>
#include <optional>

namespace fadeloom {

class MixerBus;

/// This instance among those of the user's session.
class HomeInstance {
public:
    struct Actions {
        std::function<void()> open = nullptr;
        std::function<void()> toggle = nullptr;
        std::function<void()> quit = nullptr;
        /// What other programs can reach as well; nullopt while there is nothing.
        std::optional<ServedControl> control = std::nullopt;
    };

    HomeInstance();
    ~HomeInstance();
    HomeInstance(const HomeInstance&) = delete;
    HomeInstance& operator=(const HomeInstance&) = delete;

    /// Becomes the only instance; otherwise asks the other one, to show its panel if wanted, and returns the
    /// outcome.
    [[nodiscard]] std::optional<EarlyEnd> claim(OpenPanel openPanel)
    {
        const auto request = openPanel == OpenPanel::yes ? InstanceRequest::open : InstanceRequest::ping;
        return secondStart(instance_.claim(request), request);
    }
    /// Sets how requests are handled from now on.
    void serve(Actions actions);
    /// From now on other instances are told to wait for the exit.
    void beginEnding() { instance_.beginEnding(); }

private:
    SingleInstance instance_{instanceFolder()};
    std::unique_ptr<MixerBus> mixer_;
};

}  // namespace fadeloom
