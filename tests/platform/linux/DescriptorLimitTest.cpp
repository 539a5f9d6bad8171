// SPDX-License-Identifier: MIT
#include "platform/linux/DescriptorLimit.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace fadeloom {
namespace {

rlim_t current()
{
    rlimit limit{};
    getrlimit(RLIMIT_NOFILE, &limit);
    return limit.rlim_cur;
}

TEST(DescriptorLimit, isRaisedToTheHardLimitAndRestoredForChildren)
{
    rlimit former{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &former), 0);
    const rlimit low{former.rlim_max - 1, former.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &low), 0);

    raiseDescriptorLimit();
    raiseDescriptorLimit();
    EXPECT_EQ(current(), former.rlim_max);
    {
        const OriginalDescriptorLimit limit;
        EXPECT_EQ(current(), low.rlim_cur);
    }
    EXPECT_EQ(current(), former.rlim_max);

    setrlimit(RLIMIT_NOFILE, &former);
}

}  // namespace
}  // namespace fadeloom
