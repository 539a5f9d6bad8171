// SPDX-License-Identifier: MIT
#include "control/CallDucking.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace fadeloom {
namespace {

AppEntry appEntry(const std::string& bundleID, bool isUsingMic)
{
    AppEntry entry;
    entry.bundleID = bundleID;
    entry.isUsingMic = isUsingMic;
    entry.callIDs = {bundleID};
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

TEST(AppOnCall, isNotAnAppThatOnlyRecords)
{
    EXPECT_EQ(appOnCall(std::vector{appEntry("dictation", true)}, callApps({"talk"})), std::nullopt);
}

TEST(AppOnCall, isNoneWhileDuckingIsOff)
{
    auto focus = callApps({"talk"});
    focus.enabled = false;

    EXPECT_EQ(appOnCall(std::vector{appEntry("talk", true)}, focus), std::nullopt);
}

TEST(DuckFactor, ducksEveryUnlistedApp)
{
    auto focus = callApps({"meet", "talk"});
    focus.duckLevel = 0.3F;

    EXPECT_EQ(duckFactor(focus, "talk", std::vector<std::string>{"player"}), 0.3F);
    EXPECT_EQ(duckFactor(focus, "talk", std::vector<std::string>{"talk"}), 1);
    EXPECT_EQ(duckFactor(focus, "talk", std::vector<std::string>{"meet"}), 1);
    EXPECT_EQ(duckFactor(focus, std::nullopt, std::vector<std::string>{"player"}), 1);
}

TEST(CallOffers, areAppsOffTheListThatPlayAndListen)
{
    auto browser = appEntry("browser", true);
    browser.isPlaying = true;
    const auto offered = [&](const FocusSettings& focus) { return callOffers({&browser, 1}, focus, {}); };

    EXPECT_EQ(offered(callApps({"talk"})), std::set<std::string>{"browser"});
    EXPECT_TRUE(offered(callApps({"browser"})).empty()) << "a call app already";
    auto focus = callApps({});
    focus.declinedCallApps = {"browser"};
    EXPECT_TRUE(offered(focus).empty()) << "declined";
    focus = {.enabled = false};
    EXPECT_TRUE(offered(focus).empty()) << "nothing is lowered at all";
    browser.isPlaying = false;
    EXPECT_TRUE(offered({}).empty()) << "one that only listens records";
    browser = {.bundleID = "browser", .isPlaying = true, .callIDs = {"browser"}};
    EXPECT_TRUE(offered({}).empty()) << "one that only plays";
}

TEST(CallOffers, lastUntilTheUserAnswersOrTheAppIsGone)
{
    const auto silent = std::vector{appEntry("browser", false)};
    const std::set<std::string> before = {"browser", "gone"};

    EXPECT_EQ(callOffers(silent, {}, before), std::set<std::string>{"browser"});
    EXPECT_TRUE(callOffers(silent, callApps({"browser"}), before).empty());
}

TEST(CallOffers, areNotMadeForAnAppListedUnderAnotherIdentifier)
{
    auto phone = appEntry("phone", true);
    phone.isPlaying = true;
    phone.callIDs = {"phone", "org.example.Phone"};

    EXPECT_TRUE(callOffers({&phone, 1}, callApps({"org.example.Phone"}), {}).empty());
    EXPECT_EQ(appOnCall({&phone, 1}, callApps({"org.example.Phone"})), "phone");
    auto focus = callApps({});
    focus.declinedCallApps = {"org.example.Phone"};
    EXPECT_TRUE(callOffers({&phone, 1}, focus, {}).empty());
}

}  // namespace
}  // namespace fadeloom
