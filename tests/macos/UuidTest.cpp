// SPDX-License-Identifier: MIT
#include "platform/macos/Uuid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace fadeloom {
namespace {

TEST(Uuid, isAVersion4UUID)
{
    for (int i = 0; i < 100; ++i) {
        EXPECT_THAT(makeUuid(),
            testing::MatchesRegex("[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}"));
    }
}

TEST(Uuid, isUnique)
{
    std::set<std::string> seen;
    for (int i = 0; i < 1000; ++i)
        EXPECT_TRUE(seen.insert(makeUuid()).second);
}

}  // namespace
}  // namespace fadeloom
