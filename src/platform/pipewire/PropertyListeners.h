// SPDX-License-Identifier: MIT
// Who wants to be told of which property of which object.
#pragma once

#include "platform/AudioHardware.h"
#include "platform/pipewire/AudioWorld.h"

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

namespace fadeloom {

/// Thread: main.
class PropertyListeners : public std::enable_shared_from_this<PropertyListeners> {
public:
    [[nodiscard]] Subscription add(ChangedProperty property, AudioHardware::Listener listener);
    /// Calls the listeners of these properties; one that ends meanwhile is not called.
    void tell(const std::vector<ChangedProperty>& changes);

private:
    std::map<ChangedProperty, std::map<std::uint64_t, AudioHardware::Listener>> listeners_;
    std::uint64_t lastNumber_ = 0;
};

}  // namespace fadeloom
