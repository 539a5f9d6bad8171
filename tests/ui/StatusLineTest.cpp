// SPDX-License-Identifier: MIT
#include "ui/StatusLine.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using Kind = StatusLine::Kind;

class StatusLineTest : public testing::Test {
protected:
    Kind kind() const { return statusLine(state, app).kind; }

    ControllerState state;
    AppEntry app{.bundleID = "player", .name = "Player", .isPlaying = true, .callIDs = {"player"}};
};

TEST_F(StatusLineTest, anAppPlaysOrIsIdle)
{
    EXPECT_EQ(kind(), Kind::playing);
    app.isPlaying = false;
    EXPECT_EQ(kind(), Kind::idle);
}

TEST_F(StatusLineTest, theMostUrgentIsShownFirst)
{
    state.callApp.assign("phone");
    EXPECT_EQ(kind(), Kind::lowered);
    state.callApp.assign("player");
    EXPECT_EQ(kind(), Kind::onCall);
    state.recordings.assign({{"player", {}}});
    EXPECT_EQ(kind(), Kind::recording);
    state.missingOutput.assign({"player"});
    EXPECT_EQ(kind(), Kind::disconnected);
    state.tapErrors.assign({{"player", {.step = "Start device", .reason = "the device is gone"}}});
    EXPECT_EQ(kind(), Kind::failed);
    EXPECT_EQ(statusLine(state, app).help, "Start device failed: the device is gone");
}

TEST_F(StatusLineTest, playbackThatCannotBeTappedHasAReason)
{
    app.outOfReach = OutOfReach::fixed;
    EXPECT_EQ(kind(), Kind::outOfReach);
    EXPECT_EQ(statusLine(state, app).help, "This app ties its sound to its output device.");
    app.outOfReach = OutOfReach::contested;
    EXPECT_EQ(statusLine(state, app).help, "Another program keeps moving this app’s sound.");
}

TEST_F(StatusLineTest, aCallAppIsNotDuckedForAnothersCall)
{
    state.callApp.assign("phone");
    state.settings.modify([](auto& settings) { settings.focus.callApps = {"phone", "player"}; });

    EXPECT_EQ(kind(), Kind::playing);
}

TEST_F(StatusLineTest, theStateOfOtherAppsIsNotShown)
{
    state.recordings.assign({{"other", {}}});
    state.missingOutput.assign({"other"});
    state.tapErrors.assign({{"other", {.step = "Start device"}}});

    EXPECT_EQ(kind(), Kind::playing);
}

}  // namespace
}  // namespace fadeloom
