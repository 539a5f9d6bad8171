// SPDX-License-Identifier: MIT
// Those who want to be told when something has happened.
#pragma once

#include "base/Subscription.h"

#include <functional>
#include <memory>
#include <vector>

namespace fadeloom {

/// Thread: main. A callback may subscribe, end its own or another subscription, or cause the next notification;
/// a subscription may outlive the observers it stands in.
class Observers {
public:
    using Callback = std::function<void()>;

    Observers() = default;
    Observers(const Observers&) = delete;
    Observers& operator=(const Observers&) = delete;

    /// Has `callback` called at each notification, in the order added, until the subscription ends.
    Subscription add(Callback callback);
    [[nodiscard]] bool isEmpty() const { return list_->empty(); }
    /// Calls everyone who has been there since before this call.
    void notify() const;

private:
    // Shared by a notification under way, so that a callback that ends its own subscription is not destroyed while
    // it runs.
    struct Observer {
        Callback callback;
        bool isSubscribed = true;
    };
    using List = std::vector<std::shared_ptr<Observer>>;

    // Shared with the subscriptions, which know it weakly: they may end after this object has.
    std::shared_ptr<List> list_ = std::make_shared<List>();
};

}  // namespace fadeloom
