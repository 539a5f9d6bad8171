// SPDX-License-Identifier: MIT
// The contract of main loops, as tests over an implementation.
//
//      INSTANTIATE_TEST_SUITE_P(Qt, MainLoopContract, ::testing::Values(&makeQtLoopWorld));
#pragma once

#include "platform/MainLoop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

namespace fadeloom {

/// A loop, and a way to run it.
class ContractLoopWorld {
public:
    virtual ~ContractLoopWorld() = default;
    virtual MainLoop& loop() = 0;
    /// Runs the loop for about this long.
    virtual void runFor(std::chrono::milliseconds duration) = 0;
};

using ContractLoopWorldFactory = std::unique_ptr<ContractLoopWorld> (*)();

class MainLoopContract : public ::testing::TestWithParam<ContractLoopWorldFactory> {
protected:
    std::unique_ptr<ContractLoopWorld> world = GetParam()();
    MainLoop& loop = world->loop();
    std::vector<int> order;
};

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(MainLoopContract);

using std::chrono_literals::operator""ms;

TEST_P(MainLoopContract, postedTasksRunLaterInTheirOrder)
{
    for (int i = 0; i < 3; ++i)
        loop.post([this, i] { order.push_back(i); });
    EXPECT_THAT(order, ::testing::IsEmpty());

    world->runFor(20ms);

    EXPECT_THAT(order, ::testing::ElementsAre(0, 1, 2));
}

TEST_P(MainLoopContract, aTaskPostedByATaskRunsAfterThoseAlreadyPosted)
{
    loop.post([this] {
        order.push_back(1);
        loop.post([this] { order.push_back(3); });
    });
    loop.post([this] { order.push_back(2); });

    world->runFor(20ms);

    EXPECT_THAT(order, ::testing::ElementsAre(1, 2, 3));
}

TEST_P(MainLoopContract, tasksPostedByAnotherThreadRunOnTheMainThreadInTheirOrder)
{
    bool wasAlwaysMain = true;
    const auto mainThread = std::this_thread::get_id();

    std::thread{[&] {
        for (int i = 0; i < 1000; ++i)
            loop.post([&, i] {
                order.push_back(i);
                wasAlwaysMain = wasAlwaysMain && loop.isCurrent() && std::this_thread::get_id() == mainThread;
            });
    }}.join();
    world->runFor(50ms);

    EXPECT_THAT(order, ::testing::SizeIs(1000));
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
    EXPECT_TRUE(wasAlwaysMain);
}

TEST_P(MainLoopContract, onlyTheMainThreadIsCurrent)
{
    bool isCurrentElsewhere = true;

    std::thread{[&] { isCurrentElsewhere = loop.isCurrent(); }}.join();

    EXPECT_TRUE(loop.isCurrent());
    EXPECT_FALSE(isCurrentElsewhere);
}

TEST_P(MainLoopContract, anAfterTaskRunsOnceWhenItsTimeHasCome)
{
    const auto subscription = loop.after(300ms, [this] { order.push_back(1); });

    world->runFor(20ms);
    EXPECT_THAT(order, ::testing::IsEmpty());
    world->runFor(600ms);

    EXPECT_THAT(order, ::testing::ElementsAre(1));
}

TEST_P(MainLoopContract, anEveryTaskRunsUntilItsSubscriptionEnds)
{
    auto subscription = loop.every(10ms, [this] { order.push_back(1); });

    world->runFor(200ms);
    const std::size_t count = order.size();
    subscription.reset();
    world->runFor(50ms);

    EXPECT_GE(count, 3U);
    EXPECT_LE(count, 21U);
    EXPECT_EQ(order.size(), count);
}

TEST_P(MainLoopContract, anAfterTaskDoesNotRunWhenItsSubscriptionHasEnded)
{
    auto subscription = loop.after(10ms, [this] { order.push_back(1); });

    subscription.reset();
    world->runFor(50ms);

    EXPECT_THAT(order, ::testing::IsEmpty());
}

TEST_P(MainLoopContract, aTaskMayEndItsOwnSubscription)
{
    Subscription every;
    Subscription after;
    const auto kept = std::make_shared<int>(7);
    every = loop.every(5ms, [&, kept] {
        every.reset();
        order.push_back(*kept);  // The task is still intact.
    });
    after = loop.after(5ms, [&, kept] {
        after.reset();
        order.push_back(*kept);
    });

    world->runFor(60ms);

    EXPECT_THAT(order, ::testing::ElementsAre(7, 7));
    EXPECT_EQ(kept.use_count(), 1);
}

TEST_P(MainLoopContract, aTaskMayReplaceItsOwnTimer)
{
    Subscription timer;
    timer = loop.after(5ms, [&] {
        order.push_back(1);
        timer = loop.after(5ms, [&] { order.push_back(2); });
    });

    world->runFor(80ms);

    EXPECT_THAT(order, ::testing::ElementsAre(1, 2));
}

TEST_P(MainLoopContract, timersRunInTheOrderOfTheirTimes)
{
    const auto late = loop.after(60ms, [this] { order.push_back(2); });
    const auto soon = loop.after(10ms, [this] { order.push_back(1); });

    world->runFor(200ms);

    EXPECT_THAT(order, ::testing::ElementsAre(1, 2));
}

TEST_P(MainLoopContract, aSubscriptionMayOutliveItsLoop)
{
    auto subscription = loop.every(10ms, [this] { order.push_back(1); });

    world.reset();
    subscription.reset();

    EXPECT_THAT(order, ::testing::IsEmpty());
}

}  // namespace fadeloom
