// SPDX-License-Identifier: MIT
#include "control/CallDucking.h"

#include <gtest/gtest.h>

#include <vector>

namespace fadeloom {
namespace {

AppEntry appEntry(const std::string& bundleID, bool isUsingMic)
{
    AppEntry entry;
    entry.bundleID = bundleID;
    entry.isUsingMic = isUsingMic;
    return entry;
}

FocusSettings callApps(std::vector<std::string> apps)
{
    FocusSettings focus;
    focus.callApps = std::move(apps);
    return focus;
}

TEST(AppOnCall, isAListedAppThatUsesTheMicrophone)
{
    const auto focus = callApps({"meet", "talk"});

    EXPECT_EQ(appOnCall(std::vector{appEntry("player", false), appEntry("talk", true)}, focus), "talk");
    EXPECT_EQ(appOnCall(std::vector{appEntry("talk", false)}, focus), std::nullopt);
    EXPECT_EQ(appOnCall({}, focus), std::nullopt);
}

TEST(AppOnCall, isTheFirstInTheMixersOrder)
{
    const auto focus = callApps({"meet", "talk"});

    EXPECT_EQ(appOnCall(std::vector{appEntry("talk", true), appEntry("meet", true)}, focus), "talk");
}

TEST(AppOnCall, isNoAppThatOnlyRecords)
{
    EXPECT_EQ(appOnCall(std::vector{appEntry("dictation", true)}, callApps({"talk"})), std::nullopt);
}

TEST(AppOnCall, isNoneWhileDuckingIsOff)
{
    auto focus = callApps({"talk"});
    focus.enabled = false;

    EXPECT_EQ(appOnCall(std::vector{appEntry("talk", true)}, focus), std::nullopt);
}

TEST(DuckFactor, lowersEveryAppThatIsNotOfTheList)
{
    auto focus = callApps({"meet", "talk"});
    focus.duckLevel = 0.3F;

    EXPECT_EQ(duckFactor(focus, "talk", "player"), 0.3F);
    EXPECT_EQ(duckFactor(focus, "talk", "talk"), 1);
    EXPECT_EQ(duckFactor(focus, "talk", "meet"), 1);
    EXPECT_EQ(duckFactor(focus, std::nullopt, "player"), 1);
}

}  // namespace
}  // namespace fadeloom
