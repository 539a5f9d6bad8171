// SPDX-License-Identifier: MIT
// A callback into the controller on any thread but the main one aborts the program.
#include "tests/control/ControllerStory.h"

namespace fadeloom {
namespace {

class MainThreadStory : public ControllerStory {
protected:
    MainThreadStory()
    {
        testing::GTEST_FLAG(death_test_style) = "fast";
        start();
        world.runPosted();
    }

    /// Runs everything that is due, as if on another thread.
    void runElsewhere(SimulatedClock::Duration duration = {})
    {
        const SimulatedMainLoop::OtherThread other;
        world.advance(duration);
    }

    static constexpr const char* reason = "Incorrect actor executor assumption";
};

TEST_F(MainThreadStory, anAnnouncementOfDevices)
{
    world.plug({.uid = "desk", .name = "Desk"});
    EXPECT_DEATH(runElsewhere(), reason);
}

TEST_F(MainThreadStory, anAnnouncementOfTheDefaultOutput)
{
    world.setDefaultOutput("headphones");
    EXPECT_DEATH(runElsewhere(), reason);
}

TEST_F(MainThreadStory, anAnnouncementOfProcesses)
{
    world.openAudio(world.launchApp("Player"));
    EXPECT_DEATH(runElsewhere(), reason);
}

TEST_F(MainThreadStory, aDeferredPoll)
{
    world.openAudio(world.launchApp("Player"));
    world.mainLoop().runTurn();
    EXPECT_DEATH(runElsewhere(), reason);
}

TEST_F(MainThreadStory, theRegularPoll)
{
    EXPECT_DEATH(runElsewhere(5s), reason);
}

TEST_F(MainThreadStory, aRecordingAndItsEnd)
{
    launchPlaying("Player");
    controller->startRecording("com.example.player");
    EXPECT_DEATH(runElsewhere(Recording::interval), reason);

    controller->stopRecording("com.example.player");
    EXPECT_DEATH(runElsewhere(ClosingRecordings::delay), reason);
}

TEST_F(MainThreadStory, aSaveThatFailed)
{
    std::filesystem::create_directories(settingsFile() / "in the way");
    controller->editSettings([](auto& settings) { settings.volumeLimit = 1.5F; });
    world.advance(400ms);
    EXPECT_DEATH(runElsewhere(300ms), reason);
}

}  // namespace
}  // namespace fadeloom
