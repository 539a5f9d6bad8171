// SPDX-License-Identifier: MIT
#include "tests/control/ControllerStory.h"

namespace fadeloom {
namespace {

using testing::Pair;
using testing::SizeIs;
using testing::UnorderedElementsAre;

class DemoTest : public ControllerStory {
protected:
    void startDemo()
    {
        controller.emplace(world.platform(), engineLog,
            DemoContents{.apps = {{.bundleID = "player", .name = "Player", .isPlaying = true}},
                .devices = {{.id = 1, .uid = "desk", .name = "Desk"}, {.id = 2, .uid = "bed", .name = "Bed"}},
                .settings = {.volumeLimit = 1.5F},
                .levels = {{"player", 0.5F}}});
    }
};

TEST_F(DemoTest, publishesItsContents)
{
    startDemo();

    EXPECT_EQ(mixer(), "player▶");
    EXPECT_THAT(*state().devices, SizeIs(2));
    EXPECT_EQ(*state().defaultDeviceUID, "desk");
    EXPECT_EQ(*state().permission, AudioPermission::State::granted);
    EXPECT_EQ(settings().volumeLimit, 1.5F);
    EXPECT_THAT(*controller->levels().levels(), UnorderedElementsAre(Pair("player", 0.5F)));
}

TEST_F(DemoTest, queriesNothingAndTapsNothing)
{
    startDemo();

    launchPlaying("Radio");
    controller->poll();
    world.advance(20s);

    EXPECT_EQ(mixer(), "player▶");
    EXPECT_EQ(tapAttempts(), 0);
}

TEST_F(DemoTest, savesNothing)
{
    startDemo();

    setVolumeLimit(2);
    world.advance(1s);
    controller->shutdown();

    EXPECT_EQ(settings().volumeLimit, 2);
    EXPECT_FALSE(std::filesystem::exists(settingsFile()));
}

}  // namespace
}  // namespace fadeloom
