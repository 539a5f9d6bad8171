// SPDX-License-Identifier: MIT
// The icon in an app's row.
#include "tests/control/ControllerStory.h"

namespace fadeloom {
namespace {

class IconStory : public ControllerStory {
protected:
    IconStory() { start(); }
};

TEST_F(IconStory, rowsCarryTheAppsIcon)
{
    const auto icon = AppIcon{.themeName = "multimedia-player", .file = {}};
    world.startPlaying(world.launchApp("Player", {.icon = icon}));
    world.startPlaying(world.launchApp("Chat"));
    world.runPosted();

    EXPECT_EQ(state().apps->at(0).icon, AppIcon{});
    EXPECT_EQ(state().apps->at(1).icon, icon);
}

TEST_F(IconStory, anIconIsLookedUpOnceWhileItsAppRuns)
{
    launchPlaying("Player");
    launchPlaying("Browser");
    EXPECT_EQ(world.workspace().iconCount(), 2);

    world.advance(3 * AudioController::pollInterval);

    EXPECT_EQ(world.workspace().iconCount(), 2);
}

TEST_F(IconStory, aNewIconIsShownWhenTheAppReturns)
{
    const auto player = launchPlaying("Player");
    world.quitApp(player);
    world.runPosted();

    const auto icon = AppIcon{.themeName = "multimedia-player", .file = {}};
    world.startPlaying(world.launchApp("Player", {.icon = icon}));
    world.runPosted();

    EXPECT_EQ(state().apps->at(0).icon, icon);
}

}  // namespace
}  // namespace fadeloom
