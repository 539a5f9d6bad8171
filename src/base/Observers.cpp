// SPDX-License-Identifier: MIT
#include "base/Observers.h"

#include <utility>

namespace fadeloom {

Subscription Observers::add(Callback callback)
{
    auto observer = std::make_shared<Observer>(std::move(callback));
    list_->push_back(observer);
    return Subscription([weakList = std::weak_ptr(list_), observer = std::move(observer)] {
        observer->isSubscribed = false;
        if (const auto list = weakList.lock())
            std::erase(*list, observer);
    });
}

void Observers::notify() const
{
    for (const auto& observer : List(*list_)) {
        if (observer->isSubscribed)
            observer->callback();
    }
}

}  // namespace fadeloom
