// SPDX-License-Identifier: MIT
#include "control/ProcessListeners.h"

#include <utility>

namespace fadeloom {

ProcessListeners::ProcessListeners(AudioHardware& hardware, std::function<void()> changed)
    : hardware_(hardware)
    , changed_(std::move(changed))
{
}

void ProcessListeners::sync(const std::set<AudioObjectID>& current)
{
    std::erase_if(listeners_, [&](const auto& listener) { return !current.contains(listener.first); });

    // A process that cannot be listened to is not asked again: the regular poll sees its changes all the same.
    const auto listen = [this](AudioObjectID process, AudioObjectPropertySelector selector) {
        return hardware_.listen(process, {.selector = selector}, changed_).value_or(Subscription());
    };
    for (const auto process : current) {
        if (!listeners_.contains(process)) {
            listeners_.emplace(process,
                std::array{listen(process, kAudioProcessPropertyIsRunningOutput),
                    listen(process, kAudioProcessPropertyIsRunningInput)});
        }
    }
}

}  // namespace fadeloom
