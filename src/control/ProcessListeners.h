// SPDX-License-Identifier: MIT
// Hears each audio process start and stop playing, and start and stop using the microphone.
#pragma once

#include "platform/AudioHardware.h"

#include <array>
#include <functional>
#include <map>
#include <set>

namespace fadeloom {

/// Thread: main.
class ProcessListeners {
public:
    /// `changed` is called on the main loop after each change of any process.
    ProcessListeners(AudioHardware& hardware, std::function<void()> changed);

    /// Listens to these audio process objects and to no others. Those that went are let go before new ones are heard.
    void sync(const std::set<AudioObjectID>& current);

private:
    AudioHardware& hardware_;
    std::function<void()> changed_;
    std::map<AudioObjectID, std::array<Subscription, 2>> listeners_;
};

}  // namespace fadeloom
