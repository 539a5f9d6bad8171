// SPDX-License-Identifier: MIT
// Restarts of the audio service.
//
// With the service go all objects that we had made there and everyone who listened. The ids of what was there may come
// again, for other objects.
#pragma once

#include "base/Observers.h"

#include <functional>
#include <memory>

namespace fadeloom {

class PropertyListener;

/// Listens while anybody wants to hear. Thread: main.
class ServiceRestarts {
public:
    ServiceRestarts();
    ServiceRestarts(const ServiceRestarts&) = delete;
    ServiceRestarts& operator=(const ServiceRestarts&) = delete;
    ~ServiceRestarts();

    /// `restarted` is called once the service is back. The subscription may outlive this.
    [[nodiscard]] Subscription add(std::function<void()> restarted);

private:
    struct Watch {
        Observers observers;
        std::unique_ptr<PropertyListener> listener;
    };

    static void listen(const std::shared_ptr<Watch>& watch);

    const std::shared_ptr<Watch> watch_;
};

}  // namespace fadeloom
