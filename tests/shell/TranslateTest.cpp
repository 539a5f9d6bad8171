// SPDX-License-Identifier: MIT
#include "shell/Translate.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

TEST(WithValue, replacesThePlaceholder)
{
    EXPECT_EQ(withValue("Fadeloom %1 is available", "1.4"), "Fadeloom 1.4 is available");
    EXPECT_EQ(withValue("%1", ""), "");
}

TEST(WithValue, doesNotReplacePlaceholdersInTheValue)
{
    EXPECT_EQ(withValue("Fadeloom %1 is available", "%1 %2"), "Fadeloom %1 %2 is available");
}

TEST(WithValue, aTextWithoutAPlaceholderIsUnchanged)
{
    EXPECT_EQ(withValue("Later", "1.4"), "Later");
}

}  // namespace
}  // namespace fadeloom
