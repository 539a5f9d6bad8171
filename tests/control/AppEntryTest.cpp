// SPDX-License-Identifier: MIT
#include "control/AppEntry.h"

#include "platform/simulated/SimulatedText.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

AppEntry entry(const std::string& name, bool isPlaying, const std::string& bundleID = "")
{
    return {.bundleID = bundleID.empty() ? name : bundleID, .name = name, .isPlaying = isPlaying};
}

std::string orderOf(std::vector<AppEntry> entries)
{
    return describe(inDisplayOrder(std::move(entries), SimulatedText()));
}

TEST(DisplayOrder, putsThosePlayingFirst)
{
    EXPECT_EQ(orderOf({entry("Alpha", false), entry("zeta", true)}), "zeta▶, Alpha");
}

TEST(DisplayOrder, ignoresLetterCaseInNames)
{
    EXPECT_EQ(
        orderOf({entry("zeta", true), entry("Alpha", true), entry("beta", true)}), "Alpha▶, beta▶, zeta▶");
}

TEST(DisplayOrder, keepsTheOrderOfEqualNames)
{
    EXPECT_EQ(orderOf({entry("Player", false, "com.b"), entry("PLAYER", false, "com.c"),
                  entry("player", false, "com.a")}),
        "com.b, com.c, com.a");
}

TEST(Describe, saysNothingOfNoEntries)
{
    EXPECT_EQ(describe({}), "");
}

}  // namespace
}  // namespace fadeloom
