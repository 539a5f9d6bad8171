// SPDX-License-Identifier: MIT
#include "base/Published.h"

#include "base/LifeToken.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace fadeloom {
namespace {

TEST(Published, notifiesEachObserverOfEachAssignment)
{
    Published<int> volume = 3;
    std::vector<int> seen;
    const auto first = volume.whenAssigned([&] { seen.push_back(*volume); });
    const auto second = volume.whenAssigned([&] { seen.push_back(*volume * 10); });

    volume.assign(4);
    volume.assign(4);

    EXPECT_EQ(seen, (std::vector{4, 40, 4, 40}));
}

TEST(Published, assignIfDifferentNotifiesOnlyOfADifference)
{
    Published<int> volume = 3;
    int told = 0;
    const auto watch = volume.whenAssigned([&] { ++told; });

    EXPECT_FALSE(volume.assignIfDifferent(3));
    EXPECT_TRUE(volume.assignIfDifferent(4));

    EXPECT_EQ(told, 1);
    EXPECT_EQ(*volume, 4);
}

TEST(Published, exchangeReturnsTheOldValueAfterNotifying)
{
    Published<int> volume = 3;
    int told = 0;
    const auto watch = volume.whenAssigned([&] { told = *volume; });

    EXPECT_EQ(volume.exchange(4), 3);

    EXPECT_EQ(told, 4);
}

TEST(Published, isSilentOnceTheSubscriptionHasEnded)
{
    Published<int> volume = 3;
    int told = 0;
    auto watch = volume.whenAssigned([&] { ++told; });

    watch.reset();
    volume.assign(4);

    EXPECT_EQ(told, 0);
}

TEST(Published, anObserverMayEndItselfAndOthersWhileItIsNotified)
{
    Published<int> volume = 3;
    std::vector<int> told;
    Subscription second;
    Subscription first = volume.whenAssigned([&] {
        told.push_back(1);
        second.reset();
        first.reset();
    });
    second = volume.whenAssigned([&] { told.push_back(2); });
    const auto third = volume.whenAssigned([&] { told.push_back(3); });

    volume.assign(4);
    volume.assign(5);

    EXPECT_EQ(told, (std::vector{1, 3, 3}));
}

TEST(Published, anObserverMayAssignAgain)
{
    Published<int> volume = 1;
    const auto watch = volume.whenAssigned([&] {
        if (*volume < 5)
            volume.assign(*volume + 1);
    });

    volume.assign(2);

    EXPECT_EQ(*volume, 5);
}

TEST(Published, anObserverAddedMeanwhileWaitsForTheNextAssignment)
{
    Published<int> volume = 1;
    int told = 0;
    Subscription late;
    const auto watch = volume.whenAssigned([&] {
        if (!late)
            late = volume.whenAssigned([&] { ++told; });
    });

    volume.assign(2);
    EXPECT_EQ(told, 0);

    volume.assign(3);
    EXPECT_EQ(told, 1);
}

TEST(Published, mayBeDestroyedBeforeItsSubscriptions)
{
    auto volume = std::make_unique<Published<int>>(3);
    auto watch = volume->whenAssigned([] { });

    volume.reset();
    watch.reset();

    EXPECT_FALSE(watch);
}

TEST(LifeToken, forwardsCallsUntilItEnds)
{
    std::optional<LifeToken> life(std::in_place);
    int sum = 0;
    const std::function<void(int)> add = life->whileAlive([&](int number) { sum += number; });

    add(1);
    life.reset();
    add(2);

    EXPECT_EQ(sum, 1);
}

}  // namespace
}  // namespace fadeloom
