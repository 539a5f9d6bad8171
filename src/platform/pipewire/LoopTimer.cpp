// SPDX-License-Identifier: MIT
#include "platform/pipewire/LoopTimer.h"

#include <pipewire/loop.h>

#include <ctime>
#include <utility>

namespace fadeloom {

LoopTimer::LoopTimer(pw_loop* loop, std::function<void()> expired)
    : loop_(loop)
    , expired_(std::move(expired))
    , source_(pw_loop_add_timer(loop, &onExpired, this))
{
}

LoopTimer::~LoopTimer()
{
    pw_loop_destroy_source(loop_, source_);
}

void LoopTimer::start(std::chrono::milliseconds delay)
{
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(delay);
    timespec value{.tv_sec = seconds.count(), .tv_nsec = std::chrono::nanoseconds{delay - seconds}.count()};
    pw_loop_update_timer(loop_, source_, &value, nullptr, false);
}

void LoopTimer::onExpired(void* self, std::uint64_t /*expirations*/)
{
    static_cast<LoopTimer*>(self)->expired_();
}

}  // namespace fadeloom
