// SPDX-License-Identifier: MIT
#include "platform/linux/UtilityQueue.h"
#include "tests/platform/BackgroundQueueContract.h"

#include <thread>

namespace fadeloom {
namespace {

class UtilityQueueWorld final : public ContractQueueWorld {
public:
    BackgroundQueue& queue() override { return queue_; }
    bool waitUntil(const std::function<bool()>& condition) override
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds{10};
        while (!condition() && std::chrono::steady_clock::now() < end)
            std::this_thread::sleep_for(1ms);
        return condition();
    }
    void letPass(std::chrono::milliseconds duration) override { std::this_thread::sleep_for(duration); }

private:
    UtilityQueue queue_;
};

std::unique_ptr<ContractQueueWorld> makeUtilityQueueWorld()
{
    return std::make_unique<UtilityQueueWorld>();
}

TEST(UtilityQueue, runNowWaitsForWorkThatIsRunning)
{
    UtilityQueue queue;
    std::atomic<bool> hasBegun = false;
    std::atomic<bool> isDone = false;
    const auto work = queue.submit(0ms, [&] {
        hasBegun = true;
        std::this_thread::sleep_for(50ms);
        isDone = true;
    });
    while (!hasBegun)
        std::this_thread::yield();

    work->runNow();

    EXPECT_TRUE(isDone);
}

TEST(UtilityQueue, tasksNeverRunConcurrently)
{
    UtilityQueue queue;
    std::atomic<int> running = 0;
    std::atomic<int> most = 0;
    std::atomic<int> done = 0;
    const auto task = [&] {
        most = std::max(most.load(), ++running);
        std::this_thread::sleep_for(std::chrono::microseconds{20});
        --running;
        ++done;
    };

    for (int i = 0; i < 300; ++i) {
        queue.submit(0ms, task);
        queue.submit(1h, task)->runNow();
    }
    while (done < 600)
        std::this_thread::yield();

    EXPECT_EQ(most, 1);
}

TEST(UtilityQueue, cancelAndRunNowFromManyThreadsRunNothingTwice)
{
    for (int round = 0; round < 200; ++round) {
        UtilityQueue queue;
        std::atomic<int> runs = 0;
        const auto work = queue.submit(0ms, [&] { ++runs; });
        std::vector<std::thread> threads;
        for (int i = 0; i < 2; ++i)
            threads.emplace_back([&] { work->runNow(); });
        threads.emplace_back([&] { work->cancel(); });
        for (auto& thread : threads)
            thread.join();

        work->runNow();

        EXPECT_LE(runs, 1);
    }
}

TEST(UtilityQueue, workMayRunOtherWorkAndItself)
{
    UtilityQueue queue;
    std::atomic<int> runs = 0;
    const auto inner = queue.submit(1h, [&] { ++runs; });
    std::shared_ptr<BackgroundQueue::Work> outer;
    outer = queue.submit(1h, [&] {
        inner->runNow();
        outer->runNow();
        ++runs;
    });

    outer->runNow();

    EXPECT_EQ(runs, 2);
}

TEST(UtilityQueue, destructionRunsWhatIsDueAndDropsTheRest)
{
    std::vector<int> done;
    std::shared_ptr<BackgroundQueue::Work> later;
    {
        UtilityQueue queue;
        for (int i = 0; i < 100; ++i)
            queue.submit(0ms, [&done, i] { done.push_back(i); });
        later = queue.submit(1h, [&done] { done.push_back(-1); });
    }

    EXPECT_THAT(done, ::testing::SizeIs(100));
    later->runNow();
    EXPECT_EQ(done.back(), -1);
}

TEST(UtilityQueue, anOverflowingDelayIsClamped)
{
    UtilityQueue queue;
    std::atomic<int> runs = 0;

    queue.submit(std::chrono::milliseconds::max(), [&] { ++runs; });
    std::this_thread::sleep_for(20ms);

    EXPECT_EQ(runs, 0);
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Utility, BackgroundQueueContract, ::testing::Values(&makeUtilityQueueWorld));

}  // namespace fadeloom
