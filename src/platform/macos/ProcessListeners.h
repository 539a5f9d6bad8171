// SPDX-License-Identifier: MIT
// Hears each audio process start and stop playing, and start and stop using the microphone.
#pragma once

#include "platform/AudioProcess.h"
#include "platform/macos/PropertyListener.h"

#include <functional>
#include <map>
#include <memory>
#include <span>
#include <vector>

namespace fadeloom {

/// Thread: main.
class ProcessListeners {
public:
    /// `changed` is called on the main queue after each change of any process.
    explicit ProcessListeners(std::function<void()> changed);

    /// Listens to these audio processes and to no others. Those that went are let go before new ones are heard.
    void sync(std::span<const AudioProcess> current);

private:
    std::function<void()> changed_;
    std::map<AudioProcessID, std::vector<std::unique_ptr<PropertyListener>>> listeners_;
};

}  // namespace fadeloom
