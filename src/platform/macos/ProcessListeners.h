// SPDX-License-Identifier: MIT
// Listens to each audio process starting and stopping to play, and to use the microphone.
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

    /// Listens to exactly these audio processes. Listeners of ended ones are removed before new ones are added.
    void sync(std::span<const AudioProcess> current);

private:
    std::function<void()> changed_;
    std::map<AudioProcessID, std::vector<std::unique_ptr<PropertyListener>>> listeners_;
};

}  // namespace fadeloom
