// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedListeners.h"

namespace fadeloom {

SimulatedListeners::SimulatedListeners(MainLoop& mainLoop)
    : mainLoop_(mainLoop)
{
}

Subscription SimulatedListeners::add(
    AudioObjectID object, const AudioObjectPropertyAddress& address, AudioHardware::Listener listener)
{
    auto entry = std::make_shared<Entry>(std::move(listener));
    const Key key{object, address};
    (*entries_)[key].push_back(entry);
    return Subscription{[weakly = std::weak_ptr{entries_}, key, entry] {
        entry->isAlive = false;
        const auto entries = weakly.lock();
        if (!entries)
            return;
        const auto found = entries->find(key);
        if (found == entries->end())
            return;
        std::erase(found->second, entry);
        if (found->second.empty())
            entries->erase(found);
    }};
}

void SimulatedListeners::tell(AudioObjectID object, const AudioObjectPropertyAddress& address)
{
    const auto found = entries_->find({object, address});
    if (found == entries_->end())
        return;
    for (const auto& entry : found->second) {
        if (std::exchange(entry->isOnItsWay, true))
            continue;
        mainLoop_.post([entry] {
            entry->isOnItsWay = false;
            if (entry->isAlive)
                entry->listener();
        });
    }
}

void SimulatedListeners::forget(AudioObjectID object)
{
    std::erase_if(*entries_, [object](const auto& entry) { return entry.first.first == object; });
}

std::size_t SimulatedListeners::count() const
{
    std::size_t count = 0;
    for (const auto& entry : *entries_)
        count += entry.second.size();
    return count;
}

}  // namespace fadeloom
