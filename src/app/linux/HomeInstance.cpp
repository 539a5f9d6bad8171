// SPDX-License-Identifier: MIT
#include "app/linux/HomeInstance.h"

#include "app/CommandAnswer.h"
#include "app/linux/MixerBus.h"
#include "commands/Watchers.h"
#include "platform/linux/CallerSandbox.h"

#include <utility>

namespace fadeloom {

HomeInstance::HomeInstance() = default;
HomeInstance::~HomeInstance() = default;

void HomeInstance::serve(Actions actions)
{
    SingleInstance::Actions served{.open = std::move(actions.open),
        .toggle = std::move(actions.toggle),
        .quit = std::move(actions.quit)};
    std::unique_ptr<MixerBus> mixer;
    if (actions.control) {
        const auto control = std::make_shared<ServedControl>(*std::move(actions.control));
        served.run = [control](const InstanceCommand& command) {
            const auto form = command.wantsJson ? AnswerForm::json : AnswerForm::text;
            const auto caller = isSandboxed(command.caller) ? Caller::sandboxed : Caller::trusted;
            return answerCommand(control->commands, command.line, form, caller, control->quit);
        };
        served.watch = [control](const InstanceCommand& command, const SendInstanceLine& send) {
            return control->watchers.add(command.line, isSandboxed(command.caller), send);
        };
        mixer = std::make_unique<MixerBus>(instance_.bus(), *control);
    }
    served.tree = mixer.get();
    instance_.serve(std::move(served));
    mixer_ = std::move(mixer);
}

}  // namespace fadeloom
