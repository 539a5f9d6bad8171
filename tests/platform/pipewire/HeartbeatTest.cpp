// SPDX-License-Identifier: MIT
#include "platform/pipewire/Heartbeat.h"

#include <gtest/gtest.h>
#include <pipewire/data-loop.h>
#include <pipewire/loop.h>
#include <pipewire/pipewire.h>
#include <sched.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <memory>
#include <thread>
#include <vector>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;

/// Pins the calling thread to the first processor.
void useOneProcessor()
{
    cpu_set_t first;
    CPU_ZERO(&first);
    CPU_SET(0, &first);
    sched_setaffinity(0, sizeof first, &first);
}

class HeartbeatTest : public testing::Test {
protected:
    HeartbeatTest()
    {
        pw_init(nullptr, nullptr);
        loop = pw_loop_new(nullptr);
        dataLoop = pw_data_loop_new(nullptr);
        pw_data_loop_start(dataLoop);
        waitForItsThread();
        heartbeat = std::make_unique<Heartbeat>(loop, dataLoop,
            Heartbeat::Callbacks{.stalled = [this] { ++stalls; }, .recovered = [this] { ++recoveries; }});
        pw_loop_enter(loop);
    }
    ~HeartbeatTest() override
    {
        isFrozen = false;
        pw_loop_leave(loop);
        pw_data_loop_stop(dataLoop);
        heartbeat.reset();
        pw_data_loop_destroy(dataLoop);
        pw_loop_destroy(loop);
    }

    /// Until then, calls to the data loop run immediately on the caller.
    void waitForItsThread() const
    {
        std::atomic<pid_t> thread = gettid();
        const auto note = [](spa_loop*, bool, std::uint32_t, const void*, std::size_t, void* into) {
            static_cast<std::atomic<pid_t>*>(into)->store(gettid());
            return 0;
        };
        while (thread == gettid()) {
            pw_data_loop_invoke(dataLoop, note, 0, nullptr, 0, true, &thread);
            std::this_thread::sleep_for(1ms);
        }
    }
    void runFor(std::chrono::milliseconds time)
    {
        const auto end = std::chrono::steady_clock::now() + time;
        while (std::chrono::steady_clock::now() < end)
            pw_loop_iterate(loop, 10);
    }
    /// Blocks the data loop's thread until `isFrozen` is false.
    void freeze()
    {
        isFrozen = true;
        const auto wait = [](spa_loop*, bool, std::uint32_t, const void*, std::size_t, void* self) {
            while (static_cast<HeartbeatTest*>(self)->isFrozen)
                std::this_thread::sleep_for(1ms);
            return 0;
        };
        pw_data_loop_invoke(dataLoop, wait, 0, nullptr, 0, false, this);
    }

    std::atomic<bool> isFrozen = false;
    int stalls = 0;
    int recoveries = 0;
    pw_loop* loop = nullptr;
    pw_data_loop* dataLoop = nullptr;
    std::unique_ptr<Heartbeat> heartbeat;
};

TEST_F(HeartbeatTest, isSilentWhileTheThreadReplies)
{
    heartbeat->setActive(true);
    runFor(1s);

    EXPECT_EQ(stalls, 0);
    EXPECT_FALSE(heartbeat->isStalled());
}

TEST_F(HeartbeatTest, reportsAStalledThreadAndItsRecovery)
{
    heartbeat->setActive(true);
    runFor(200ms);

    freeze();
    const auto begin = std::chrono::steady_clock::now();
    while (stalls == 0 && std::chrono::steady_clock::now() - begin < 5s)
        pw_loop_iterate(loop, 10);
    const auto noticed = std::chrono::steady_clock::now() - begin;
    runFor(500ms);

    EXPECT_EQ(stalls, 1);
    EXPECT_GT(noticed, (Heartbeat::missesAllowed - 1) * Heartbeat::interval);
    EXPECT_LT(noticed, 2 * (Heartbeat::missesAllowed + 1) * Heartbeat::interval);
    EXPECT_TRUE(heartbeat->isStalled());
    EXPECT_EQ(recoveries, 0);

    isFrozen = false;
    runFor(500ms);
    EXPECT_EQ(stalls, 1);
    EXPECT_EQ(recoveries, 1);
    EXPECT_FALSE(heartbeat->isStalled());
}

TEST_F(HeartbeatTest, reportsABusyThread)
{
    heartbeat->setActive(true);
    runFor(200ms);
    const auto spin = [](spa_loop*, bool, std::uint32_t, const void*, std::size_t, void* isSpinning) {
        while (*static_cast<std::atomic<bool>*>(isSpinning)) { }
        return 0;
    };
    isFrozen = true;
    pw_data_loop_invoke(dataLoop, spin, 0, nullptr, 0, false, &isFrozen);
    runFor((Heartbeat::missesAllowedWhenStarved - 3) * Heartbeat::interval);

    EXPECT_EQ(stalls, 1);
}

TEST_F(HeartbeatTest, toleratesAStarvedThreadForLonger)
{
    heartbeat->setActive(true);
    runFor(200ms);
    const auto begin = std::chrono::steady_clock::now();
    std::atomic<bool> isOver = false;
    std::vector<std::jthread> hogs;
    const auto becomeIdle = [](spa_loop*, bool, std::uint32_t, const void*, std::size_t, void*) {
        useOneProcessor();
        const sched_param parameters{};
        return sched_setscheduler(0, SCHED_IDLE, &parameters);
    };
    pw_data_loop_invoke(dataLoop, becomeIdle, 0, nullptr, 0, true, this);
    for (int i = 0; i < 4; ++i) {
        hogs.emplace_back([&] {
            useOneProcessor();
            while (!isOver) { }
        });
    }
    while (stalls == 0 && std::chrono::steady_clock::now() - begin < 3s)
        pw_loop_iterate(loop, 10);
    isOver = true;

    EXPECT_TRUE(stalls == 0
        || std::chrono::steady_clock::now() - begin
            > (Heartbeat::missesAllowedWhenStarved - 1) * Heartbeat::interval);
}

TEST_F(HeartbeatTest, doesNotPingWhileInactive)
{
    freeze();

    runFor(1500ms);
    heartbeat->setActive(true);
    runFor(40ms);
    heartbeat->setActive(false);
    runFor(1500ms);

    EXPECT_EQ(stalls, 0);
}

TEST_F(HeartbeatTest, tracksAStallToItsEndEvenWhenDeactivated)
{
    heartbeat->setActive(true);
    freeze();
    runFor(2000ms);
    ASSERT_EQ(stalls, 1);

    heartbeat->setActive(false);
    isFrozen = false;
    runFor(500ms);

    EXPECT_EQ(recoveries, 1);
}

}  // namespace
}  // namespace fadeloom
