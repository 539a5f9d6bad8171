// SPDX-License-Identifier: MIT
// One instance a session on Linux: a second start opens the first one's panel.
#pragma once

#include "app/CommandAnswer.h"
#include "app/linux/SecondStart.h"
#include "commands/Watchers.h"
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
        std::function<std::string(const std::string& line, AnswerForm form, Caller caller)> run = nullptr;
        /// Those that are told what happens.
        Watchers* watchers = nullptr;
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
        SingleInstance::Actions served{.open = std::move(actions.open),
            .toggle = std::move(actions.toggle),
            .quit = std::move(actions.quit)};
        if (actions.run) {
            served.run = [answer = std::move(actions.run)](const InstanceCommand& command) {
                const auto form = command.wantsJson ? AnswerForm::json : AnswerForm::text;
                return answer(command.line, form, callerOf(command.caller));
            };
        }
        if (actions.watchers != nullptr) {
            served.watch = [watchers = actions.watchers](const auto& command, const auto& send) {
                return watchers->add(command.line, isSandboxed(command.caller), send);
            };
        }
        instance_.serve(std::move(served));
    }
    /// From now on others are told to wait for the end.
    void beginEnding() { instance_.beginEnding(); }

private:
    static Caller callerOf(pid_t process)
    {
        return isSandboxed(process) ? Caller::sandboxed : Caller::trusted;
    }

    SingleInstance instance_{instanceFolder()};
};

}  // namespace fadeloom
