// SPDX-License-Identifier: MIT
#include "platform/pipewire/PropertyListeners.h"

namespace fadeloom {

Subscription PropertyListeners::add(ChangedProperty property, AudioHardware::Listener listener)
{
    const auto number = ++lastNumber_;
    listeners_[property][number] = std::move(listener);
    return Subscription{[self = weak_from_this(), property, number] {
        const auto me = self.lock();
        const auto found = me ? me->listeners_.find(property) : decltype(me->listeners_.end()){};
        if (!me || found == me->listeners_.end())
            return;
        found->second.erase(number);
        if (found->second.empty())
            me->listeners_.erase(found);
    }};
}

void PropertyListeners::tell(const std::vector<ChangedProperty>& changes)
{
    for (const auto& property : changes) {
        const auto found = listeners_.find(property);
        if (found == listeners_.end())
            continue;
        std::vector<std::uint64_t> numbers;
        for (const auto& [number, listener] : found->second)
            numbers.push_back(number);
        for (const auto number : numbers) {
            // Looked up anew each time: the one before may have ended this one.
            const auto still = listeners_.find(property);
            const auto entry = still == listeners_.end() ? nullptr : &still->second;
            const auto listener = entry && entry->contains(number) ? entry->at(number) : nullptr;
            if (listener)
                listener();
        }
    }
}

}  // namespace fadeloom
