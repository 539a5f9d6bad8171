// SPDX-License-Identifier: MIT
// The contract of background queues, as tests over an implementation.
//
//      INSTANTIATE_TEST_SUITE_P(Simulated, BackgroundQueueContract, ::testing::Values(&makeSimulatedQueueWorld));
#pragma once

#include "platform/BackgroundQueue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace fadeloom {

/// A queue, with control over time.
class ContractQueueWorld {
public:
    virtual ~ContractQueueWorld() = default;
    virtual BackgroundQueue& queue() = 0;
    /// Lets time pass until `condition` holds; false if that takes too long.
    [[nodiscard]] virtual bool waitUntil(const std::function<bool()>& condition) = 0;
    virtual void letPass(std::chrono::milliseconds duration) = 0;
};

using ContractQueueWorldFactory = std::unique_ptr<ContractQueueWorld> (*)();

class BackgroundQueueContract : public ::testing::TestWithParam<ContractQueueWorldFactory> {
protected:
    std::function<void()> noting(int number)
    {
        return [this, number] {
            const std::scoped_lock guard{mutex};
            done.push_back(number);
        };
    }
    std::vector<int> doneSoFar()
    {
        const std::scoped_lock guard{mutex};
        return done;
    }

    std::mutex mutex;
    std::vector<int> done;
    // Destroyed first: its tasks refer to the above.
    std::unique_ptr<ContractQueueWorld> world = GetParam()();
    BackgroundQueue& queue = world->queue();
};

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(BackgroundQueueContract);

using std::chrono_literals::operator""ms;
using std::chrono_literals::operator""h;

TEST_P(BackgroundQueueContract, workRunsAfterItsDelay)
{
    queue.submit(300ms, noting(1));

    world->letPass(10ms);
    EXPECT_THAT(doneSoFar(), ::testing::IsEmpty());

    EXPECT_TRUE(world->waitUntil([this] { return doneSoFar() == std::vector{1}; }));
}

TEST_P(BackgroundQueueContract, workDueImmediatelyRunsInOrder)
{
    std::vector<int> expected;
    for (int i = 0; i < 500; ++i) {
        queue.submit(0ms, noting(i));
        expected.push_back(i);
    }

    EXPECT_TRUE(world->waitUntil([&] { return doneSoFar().size() == 500; }));
    EXPECT_EQ(doneSoFar(), expected);
}

TEST_P(BackgroundQueueContract, workThatIsDueDoesNotWaitForWorkThatIsNot)
{
    queue.submit(1h, noting(1));
    queue.submit(0ms, noting(2));

    EXPECT_TRUE(world->waitUntil([this] { return doneSoFar() == std::vector{2}; }));
}

TEST_P(BackgroundQueueContract, cancelledWorkDoesNotRun)
{
    const auto work = queue.submit(20ms, noting(1));

    work->cancel();
    work->runNow();
    world->letPass(60ms);

    EXPECT_THAT(doneSoFar(), ::testing::IsEmpty());
}

TEST_P(BackgroundQueueContract, runNowRunsTheWorkOnceAndImmediately)
{
    const auto work = queue.submit(20ms, noting(1));

    work->runNow();
    EXPECT_THAT(doneSoFar(), ::testing::ElementsAre(1));
    work->runNow();
    world->letPass(60ms);

    EXPECT_THAT(doneSoFar(), ::testing::ElementsAre(1));
}

TEST_P(BackgroundQueueContract, cancellingCompletedWorkHasNoEffect)
{
    const auto work = queue.submit(0ms, noting(1));
    EXPECT_TRUE(world->waitUntil([this] { return doneSoFar().size() == 1; }));

    work->cancel();
    work->runNow();

    EXPECT_THAT(doneSoFar(), ::testing::ElementsAre(1));
}

TEST_P(BackgroundQueueContract, workContinuesWithoutItsHandle)
{
    queue.submit(5ms, noting(1)).reset();

    EXPECT_TRUE(world->waitUntil([this] { return doneSoFar().size() == 1; }));
}

TEST_P(BackgroundQueueContract, workMaySubmitMoreWork)
{
    queue.submit(0ms, [this] {
        noting(1)();
        queue.submit(0ms, noting(2));
    });

    EXPECT_TRUE(world->waitUntil([this] { return doneSoFar() == std::vector{1, 2}; }));
}

TEST_P(BackgroundQueueContract, workMayCancelItself)
{
    std::shared_ptr<BackgroundQueue::Work> work;
    std::atomic<bool> isSet = false;
    work = queue.submit(5ms, [&] {
        if (isSet)
            work->cancel();
        noting(1)();
    });
    isSet = true;

    EXPECT_TRUE(world->waitUntil([this] { return doneSoFar().size() == 1; }));
}

TEST_P(BackgroundQueueContract, capturesAreReleasedWhenTheTaskIsDoneOrCancelled)
{
    const auto held = std::make_shared<int>(1);

    const auto soon = queue.submit(0ms, [held] { });
    const auto cancelled = queue.submit(1h, [held] { });
    cancelled->cancel();

    EXPECT_TRUE(world->waitUntil([&] { return held.use_count() == 1; }));
}

}  // namespace fadeloom
