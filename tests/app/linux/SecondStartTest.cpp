// SPDX-License-Identifier: MIT
#include "app/linux/SecondStart.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using Start = SingleInstance::Start;

TEST(SecondStart, theFirstMayRun)
{
    EXPECT_FALSE(secondStart(Start::first, InstanceRequest::open));
    EXPECT_FALSE(secondStart(Start::first, InstanceRequest::ping));
}

TEST(SecondStart, isASuccessWhenThePanelIsOpen)
{
    EXPECT_EQ(secondStart(Start::answered, InstanceRequest::open)->exitStatus, 0);
}

TEST(SecondStart, hasADistinctStatusWhenNothingWasDone)
{
    EXPECT_EQ(secondStart(Start::answered, InstanceRequest::ping)->exitStatus, 3);
    EXPECT_EQ(secondStart(Start::withoutPanel, InstanceRequest::open)->exitStatus, 3);
}

TEST(SecondStart, isAFailureWhenTheFirstSaysNothing)
{
    EXPECT_EQ(secondStart(Start::unanswered, InstanceRequest::open)->exitStatus, 1);
    EXPECT_EQ(secondStart(Start::unanswered, InstanceRequest::ping)->message,
        "it is running already, but does not answer");
}

}  // namespace
}  // namespace fadeloom
