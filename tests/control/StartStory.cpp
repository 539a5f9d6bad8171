// SPDX-License-Identifier: MIT
// The controller's start, requests and shutdown.
#include "tests/control/ControllerStory.h"

#include <memory>

namespace fadeloom {
namespace {

class StartStory : public ControllerStory { };

TEST_F(StartStory, logsItsInitialState)
{
    start();

    EXPECT_EQ(log().front(), "started 1.2.3, permission: granted, output: speakers");
}

TEST_F(StartStory, logsWhatIsMissing)
{
    unplug("speakers");
    unplug("headphones");
    world.setPermission(SimulatedCapturePermission::undecided);

    controller.emplace(world.platform(), engineLog, "");

    EXPECT_EQ(log().front(), "started ?, permission: notDetermined, output: none");
}

TEST_F(StartStory, knowsTheDevicesAtOnce)
{
    start();

    ASSERT_EQ(state().devices->size(), 2);
    EXPECT_EQ(state().devices->front().name, "Desk Speakers");
    EXPECT_EQ(*state().defaultDeviceUID, "speakers");
}

TEST_F(StartStory, tapsAnAppThatIsAlreadyPlaying)
{
    launchPlaying("Player");

    start();

    EXPECT_EQ(mixer(), "com.example.player▶");
    EXPECT_EQ(outputOf("com.example.player"), "speakers");
}

TEST_F(StartStory, loadsTheSettingsOfAnEarlierRun)
{
    SettingsData earlier;
    earlier.apps["com.example.player"].volume = 0.5F;
    givenSettings(earlier);
    launchPlaying("Player");

    start();

    EXPECT_EQ(valuesOf("com.example.player").volume, 0.5F);
    EXPECT_NEAR(heardAt("speakers"), source * 0.5F, tolerance);
}

TEST_F(StartStory, learnsTheNewNameOfAnAppThatIsKnown)
{
    SettingsData earlier;
    earlier.knownAppNames["com.example.player"] = "Old Player";
    givenSettings(earlier);
    launchPlaying("Player");

    start();

    EXPECT_EQ(settings().knownAppNames.at("com.example.player"), "Player");
}

TEST_F(StartStory, startsWithTheDefaultsWhenTheSettingsAreUnreadable)
{
    std::filesystem::create_directories(settingsFile());  // A folder in place of the file.

    start();

    EXPECT_EQ(settings(), defaultSettings(defaultCallApps(world.callApps())));
}

TEST_F(StartStory, listsTheCallAppsOfTheSystem)
{
    start();
    EXPECT_THAT(settings().focus.callApps, testing::ElementsAre("com.example.meet", "com.example.talk"));
}

TEST_F(StartStory, migratesAnUneditedList)
{
    SettingsData former;
    former.focus.callApps = {"old", "older"};
    givenSettings(former);
    world.callApps().setFormerDefaults({"old", "older"});

    start();

    EXPECT_THAT(settings().focus.callApps, testing::ElementsAre("com.example.meet", "com.example.talk"));
}

TEST_F(StartStory, pollsEveryFiveSeconds)
{
    start();
    world.setPermission(SimulatedCapturePermission::denied);  // Not announced.

    world.advance(4900ms);
    EXPECT_EQ(*state().permission, AudioPermission::State::granted);

    world.advance(200ms);
    EXPECT_EQ(*state().permission, AudioPermission::State::denied);
    world.setPermission(SimulatedCapturePermission::granted);
    world.advance(5s);
    EXPECT_EQ(*state().permission, AudioPermission::State::granted);
}

TEST_F(StartStory, tenRequestsWithinAnIterationCostOnePoll)
{
    launchPlaying("Player");
    start();
    world.audio().clearCallCounts();

    for (int i = 0; i < 10; ++i)
        controller->schedulePoll();
    EXPECT_EQ(world.audio().callCount(AudioOperation::processes), 0);
    world.runPosted();

    EXPECT_EQ(world.audio().callCount(AudioOperation::processes), 1);
}

TEST_F(StartStory, isNotCalledAnyMoreOnceItIsGone)
{
    launchPlaying("Player");
    start();
    controller->schedulePoll();
    controller->requestPermission();

    end();
    world.audio().clearCallCounts();
    world.capturePermission().answer(true);
    world.startPlaying(world.launchApp("Chat"));
    unplug("headphones");
    world.advance(10s);

    EXPECT_EQ(world.audio().callCount(), 0);
    EXPECT_EQ(tapAttempts(), 1);
}

TEST_F(StartStory, aCallbackOnAnotherThreadAborts)
{
    start();
    controller->schedulePoll();

    EXPECT_DEATH(
        {
            const SimulatedMainLoop::OtherThread elsewhere;
            world.runPosted();
        },
        "Fatal error: Incorrect actor executor assumption; Expected same executor as ");
}

TEST_F(StartStory, shutdownRemovesEveryTap)
{
    launchPlaying("Player");
    launchPlaying("Chat");
    start();

    controller->shutdown();

    EXPECT_EQ(callCount(AudioOperation::destroyTap), 2);
    EXPECT_EQ(tapOf("com.example.player"), nullptr);
    EXPECT_NEAR(heardAt("speakers"), 2 * source, tolerance);
}

TEST_F(StartStory, nothingIsTappedAgainAfterShutdown)
{
    launchPlaying("Player");
    start();
    controller->schedulePoll();

    controller->shutdown();
    world.audio().clearCallCounts();
    launchPlaying("Chat");
    unplug("headphones");
    world.advance(10s);

    EXPECT_EQ(tapAttempts(), 1);
    EXPECT_EQ(world.audio().callCount(), 0);
}

TEST_F(StartStory, shutdownWritesAPendingChange)
{
    start();
    setVolumeLimit(1.5F);
    world.advance(100ms);
    ASSERT_FALSE(std::filesystem::exists(settingsFile()));

    controller->shutdown();

    EXPECT_EQ(saved().volumeLimit, 1.5F);
}

TEST_F(StartStory, shutdownWithoutAChangeWritesNothing)
{
    start();

    controller->shutdown();

    EXPECT_FALSE(std::filesystem::exists(settingsFile()));
}

}  // namespace
}  // namespace fadeloom
