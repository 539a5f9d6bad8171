// SPDX-License-Identifier: MIT
// Restarts of the audio service.
//
// A restart destroys all objects that we created in the service, and all listeners. Old ids may be reused for other
// objects.
#pragma once

#include "base/Observers.h"

#include <functional>
#include <memory>

namespace fadeloom {

class PropertyListener;

/// Listens while there are subscribers. Thread: main.
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
