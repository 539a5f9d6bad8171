// SPDX-License-Identifier: MIT
// One instance a session on Linux: a second start opens the first one's panel.
#pragma once

#include "app/linux/SecondStart.h"

#include <optional>
#include <utility>

namespace fadeloom {

/// This instance among those of the user's session.
class HomeInstance {
public:
    using Actions = SingleInstance::Actions;

    /// Becomes the one instance; else asks the other one, to show its panel if `wantsPanel`, and tells how that went.
    [[nodiscard]] std::optional<EarlyEnd> claim(bool wantsPanel)
    {
        const auto request = wantsPanel ? InstanceRequest::open : InstanceRequest::ping;
        return secondStart(instance_.claim(request), request);
    }
    /// What is done from now on when others ask.
    void serve(Actions actions) { instance_.serve(std::move(actions)); }
    /// From now on others are told to wait for the end.
    void beginEnding() { instance_.beginEnding(); }

private:
    SingleInstance instance_{instanceFolder()};
};

}  // namespace fadeloom
