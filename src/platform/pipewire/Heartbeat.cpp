// SPDX-License-Identifier: MIT
#include "platform/pipewire/Heartbeat.h"

#include <pipewire/data-loop.h>
#include <pipewire/loop.h>
#include <pthread.h>
#include <unistd.h>

#include <ctime>
#include <fstream>
#include <string>
#include <utility>

namespace fadeloom {

namespace {

/// Whether our thread is running or runnable.
bool isRunnable(pid_t thread)
{
    std::ifstream file("/proc/self/task/" + std::to_string(thread) + "/stat");
    std::string line;
    std::getline(file, line);
    const auto name = line.rfind(')');  // The name before it may contain anything.
    return name != std::string::npos && line.compare(name, 3, ") R") == 0;
}

}  // namespace

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
    auto& heartbeat = *static_cast<Heartbeat*>(self);
    heartbeat.thread_.store(gettid(), std::memory_order_relaxed);
    clockid_t clock = 0;
    if (pthread_getcpuclockid(pthread_self(), &clock) == 0)
        heartbeat.cpuClock_.store(clock, std::memory_order_relaxed);
    heartbeat.answered_.store(beat, std::memory_order_relaxed);
    return 0;
}

void Heartbeat::check()
{
    if (answered_.load(std::memory_order_relaxed) != asked_) {
        ++misses_;
        if (misses_ >= missesAllowed && !isStalled_
            && (misses_ >= missesAllowedWhenStarved || !isStarved())) {
            isStalled_ = true;
            callbacks_.stalled();
        }
        return;  // One ping at a time: more would fill the loop's queue.
    }
    misses_ = 0;
    if (std::exchange(isStalled_, false)) {
        setTimer(isActive_);
        callbacks_.recovered();
    }
    ++asked_;
    cpuTimeAtPing_ = cpuTime();
    pw_data_loop_invoke(dataLoop_, &onBeat, asked_, nullptr, 0, false, this);
}

// Runnable since the ping, and hardly running. A thread that hangs is either blocked or busy.
bool Heartbeat::isStarved() const
{
    return isRunnable(thread_.load(std::memory_order_relaxed)) && cpuTime() - cpuTimeAtPing_ < interval / 2;
}

std::chrono::nanoseconds Heartbeat::cpuTime() const
{
    timespec worked{};
    clock_gettime(cpuClock_.load(std::memory_order_relaxed), &worked);
    return std::chrono::seconds(worked.tv_sec) + std::chrono::nanoseconds(worked.tv_nsec);
}

}  // namespace fadeloom
