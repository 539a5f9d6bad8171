// SPDX-License-Identifier: MIT
// The list of observers of an event.
#pragma once

#include "base/Subscription.h"

#include <functional>
#include <memory>
#include <vector>

namespace fadeloom {

/// Thread: main. A callback may subscribe, end its own or another subscription, or trigger the next notification; a
/// subscription may outlive the Observers.
class Observers {
public:
    using Callback = std::function<void()>;

    Observers() = default;
    Observers(const Observers&) = delete;
    Observers& operator=(const Observers&) = delete;

    /// `callback` is called at each notification, in the order added, until the subscription ends.
    Subscription add(Callback callback);
    [[nodiscard]] bool isEmpty() const { return list_->empty(); }
    /// Calls all observers that were subscribed before this call.
    void notify() const;

private:
    // Shared with a running notification, so that a callback that ends its own subscription is not destroyed while it
    // runs.
    struct Observer {
        Callback callback;
        bool isSubscribed = true;
    };
    using List = std::vector<std::shared_ptr<Observer>>;

    // Subscriptions hold a weak reference: they may outlive this object.
    std::shared_ptr<List> list_ = std::make_shared<List>();
};

}  // namespace fadeloom
