// SPDX-License-Identifier: MIT
// Who wants to hear of which property of a simulated audio system.
#pragma once

#include "platform/AudioHardware.h"
#include "platform/MainLoop.h"

#include <cstddef>
#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace fadeloom {

/// Thread: main.
class SimulatedListeners {
public:
    explicit SimulatedListeners(MainLoop& mainLoop);

    /// The subscription may outlive this object.
    Subscription add(
        AudioObjectID object, const AudioObjectPropertyAddress& address, AudioHardware::Listener listener);
    /// Posts the listeners of a property; one that is already on its way is not posted again.
    void tell(AudioObjectID object, const AudioObjectPropertyAddress& address);
    /// Forgets the listeners of an object that has gone.
    void forget(AudioObjectID object);
    [[nodiscard]] std::size_t count() const;

private:
    struct Entry {
        AudioHardware::Listener listener;
        bool isAlive = true;
        bool isOnItsWay = false;
    };
    using Key = std::pair<AudioObjectID, AudioObjectPropertyAddress>;
    using Entries = std::map<Key, std::vector<std::shared_ptr<Entry>>>;

    MainLoop& mainLoop_;
    std::shared_ptr<Entries> entries_ =
        std::make_shared<Entries>();  // Shared with subscriptions, which look weakly.
};

}  // namespace fadeloom
