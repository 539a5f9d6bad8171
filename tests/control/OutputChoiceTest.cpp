// SPDX-License-Identifier: MIT
#include "control/OutputChoice.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

const std::vector<OutputDevice> devices = {{2, "speakers", "Speakers"}, {3, "headphones", "Headphones"}};

SettingsData choosing(const std::optional<std::string>& uid)
{
    SettingsData settings;
    settings.apps["com.example.player"].outputUID = uid;
    return settings;
}

TEST(OutputChoice, isTheDeviceInTheAppsEntry)
{
    EXPECT_EQ(chosenOutputUID(choosing("headphones"), "com.example.player"), "headphones");
    EXPECT_EQ(chosenOutputUID(choosing("headphones"), "com.example.chat"), std::nullopt);
    EXPECT_EQ(chosenOutputUID(choosing(std::nullopt), "com.example.player"), std::nullopt);
}

TEST(OutputChoice, isMissingWhenItsDeviceIsNotConnected)
{
    EXPECT_TRUE(isOutputMissing(choosing("television"), devices, "com.example.player"));
    EXPECT_FALSE(isOutputMissing(choosing("headphones"), devices, "com.example.player"));
}

TEST(OutputChoice, isMissingWithoutAnyDevice)
{
    EXPECT_TRUE(isOutputMissing(choosing("speakers"), {}, "com.example.player"));
}

TEST(OutputChoice, ofAnAppThatFollowsTheDefaultIsNeverMissing)
{
    EXPECT_FALSE(isOutputMissing(choosing(std::nullopt), {}, "com.example.player"));
    EXPECT_FALSE(isOutputMissing(choosing("speakers"), {}, "com.example.chat"));
}

TEST(Difference, isTheSymmetricDifference)
{
    EXPECT_EQ(difference({"a", "b"}, {"b", "c"}), (std::set<std::string>{"a", "c"}));
    EXPECT_EQ(difference({"a"}, {"a"}), std::set<std::string>{});
}

}  // namespace
}  // namespace fadeloom
