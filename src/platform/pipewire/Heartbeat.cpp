// SPDX-License-Identifier: MIT
#include "platform/pipewire/Heartbeat.h"

#include <pipewire/data-loop.h>
#include <pipewire/loop.h>

#include <ctime>
#include <utility>

namespace fadeloom {

Heartbeat::Heartbeat(pw_loop* loop, pw_data_loop* dataLoop, Callbacks callbacks)
    : loop_(loop)
    , dataLoop_(dataLoop)
    , callbacks_(std::move(callbacks))
    , timer_(pw_loop_add_timer(loop, &onTimer, this))
{
}

Heartbeat::~Heartbeat()
{
    pw_loop_destroy_source(loop_, timer_);
}

void Heartbeat::setActive(bool isActive)
{
    if (isActive == std::exchange(isActive_, isActive))
        return;
    misses_ = 0;
    setTimer(isActive_ || isStalled_);
}

void Heartbeat::setTimer(bool isRunning)
{
    timespec period{.tv_sec = 0, .tv_nsec = std::chrono::nanoseconds(interval).count()};
    if (!isRunning)
        period = {};
    pw_loop_update_timer(loop_, timer_, &period, &period, false);
}

void Heartbeat::onTimer(void* self, std::uint64_t /*expirations*/)
{
    static_cast<Heartbeat*>(self)->check();
}

int Heartbeat::onBeat(spa_loop* /*loop*/, bool /*async*/, std::uint32_t beat, const void* /*data*/,
    std::size_t /*size*/, void* self)
{
    static_cast<Heartbeat*>(self)->answered_.store(beat, std::memory_order_relaxed);
    return 0;
}

void Heartbeat::check()
{
    if (answered_.load(std::memory_order_relaxed) != asked_) {
        if (++misses_ == missesAllowed && !isStalled_) {
            isStalled_ = true;
            callbacks_.stalled();
        }
        return;  // One question at a time: they would fill the loop's queue.
    }
    misses_ = 0;
    if (std::exchange(isStalled_, false)) {
        setTimer(isActive_);
        callbacks_.recovered();
    }
    ++asked_;
    pw_data_loop_invoke(dataLoop_, &onBeat, asked_, nullptr, 0, false, this);
}

}  // namespace fadeloom
