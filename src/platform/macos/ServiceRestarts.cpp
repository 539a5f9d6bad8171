// SPDX-License-Identifier: MIT
#include "platform/macos/ServiceRestarts.h"

#include "platform/macos/HAL.h"
#include "platform/macos/PropertyListener.h"

#include <utility>

namespace fadeloom {

ServiceRestarts::ServiceRestarts()
    : watch_(std::make_shared<Watch>())
{
}

ServiceRestarts::~ServiceRestarts() = default;

Subscription ServiceRestarts::add(std::function<void()> restarted)
{
    auto added = std::make_shared<Subscription>(watch_->observers.add(std::move(restarted)));
    if (!watch_->listener)
        listen(watch_);
    return Subscription([added, weakly = std::weak_ptr(watch_)] {
        added->reset();
        if (const auto watch = weakly.lock(); watch && watch->observers.isEmpty())
            watch->listener.reset();
    });
}

void ServiceRestarts::listen(const std::shared_ptr<Watch>& watch)
{
    auto listener = PropertyListener::add(kAudioObjectSystemObject,
        HAL::address(kAudioHardwarePropertyServiceRestarted), [weakly = std::weak_ptr(watch)] {
            const auto alive = weakly.lock();
            if (!alive)
                return;
            alive->listener.reset();  // It was lost along with the others.
            listen(alive);
            alive->observers.notify();
        });
    if (listener)
        watch->listener = std::move(*listener);
}

}  // namespace fadeloom
