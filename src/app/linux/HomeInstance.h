// SPDX-License-Identifier: MIT
// One instance a session on Linux: a second start opens the first one's panel.
#pragma once

#include "app/linux/SecondStart.h"
#include "platform/linux/CallerSandbox.h"

#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace fadeloom {

/// This instance among those of the user's session.
class HomeInstance {
public:
    struct Actions {
        std::function<void()> open = nullptr;
        std::function<void()> toggle = nullptr;
        std::function<void()> quit = nullptr;
        /// Does what another program's command says; returns the answer in one line.
        std::function<std::string(const std::string& line, bool isSandboxed)> run = nullptr;
    };

    /// Becomes the one instance; else asks the other one, to show its panel if `wantsPanel`, and tells how that went.
    [[nodiscard]] std::optional<EarlyEnd> claim(bool wantsPanel)
    {
        const auto request = wantsPanel ? InstanceRequest::open : InstanceRequest::ping;
        return secondStart(instance_.claim(request), request);
    }
    /// What is done from now on when others ask.
    void serve(Actions actions)
    {
        RunInstanceCommand run;
        if (actions.run) {
            run = [answer = std::move(actions.run)](
                      const std::string& line, pid_t caller) { return answer(line, isSandboxed(caller)); };
        }
        instance_.serve({.open = std::move(actions.open),
            .toggle = std::move(actions.toggle),
            .quit = std::move(actions.quit),
            .run = std::move(run)});
    }
    /// From now on others are told to wait for the end.
    void beginEnding() { instance_.beginEnding(); }

private:
    SingleInstance instance_{instanceFolder()};
};

}  // namespace fadeloom
