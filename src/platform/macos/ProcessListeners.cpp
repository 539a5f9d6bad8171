// SPDX-License-Identifier: MIT
#include "platform/macos/ProcessListeners.h"

#include "platform/macos/HAL.h"

#include <set>
#include <utility>

namespace fadeloom {

ProcessListeners::ProcessListeners(std::function<void()> changed)
    : changed_(std::move(changed))
{
}

void ProcessListeners::sync(std::span<const AudioProcess> current)
{
    std::set<AudioProcessID> present;
    for (const auto& process : current)
        present.insert(process.id);
    std::erase_if(listeners_, [&](const auto& listener) { return !present.contains(listener.first); });

    for (const auto id : present) {
        const auto [entry, isNew] = listeners_.try_emplace(id);
        if (!isNew)
            continue;
        // A process that cannot be listened to is not retried: the regular poll detects its changes anyway.
        for (const AudioObjectPropertySelector selector :
            {kAudioProcessPropertyIsRunningOutput, kAudioProcessPropertyIsRunningInput}) {
            if (auto listener = PropertyListener::add(id, HAL::address(selector), changed_))
                entry->second.push_back(std::move(*listener));
        }
    }
}

}  // namespace fadeloom
