// SPDX-License-Identifier: MIT
// Shutdown: nothing is left behind, and nothing is lost.
#include "tests/control/ControllerStory.h"

namespace fadeloom {
namespace {

class ShutdownStory : public ControllerStory {
protected:
    ShutdownStory() { start(); }

    long closings()
    {
        return std::ranges::count_if(world.audioFiles().journal(),
            [](const std::string& call) { return call.starts_with("dispose"); });
    }
    bool areAllFilesComplete()
    {
        return std::ranges::all_of(world.audioFiles().locations(),
            [&](const auto& location) { return world.audioFiles().at(location)->isComplete; });
    }

    const std::string player = "com.example.player";
};

TEST_F(ShutdownStory, completesEveryRecording)
{
    launchPlaying("Player");
    launchPlaying("Radio");
    controller->startRecording(player);
    controller->startRecording("com.example.radio");
    world.advance(1s);

    controller->shutdown();

    EXPECT_EQ(closings(), 2);
    EXPECT_TRUE(areAllFilesComplete());
}

TEST_F(ShutdownStory, closesAStoppedRecordingOnce)
{
    launchPlaying("Player");
    controller->startRecording(player);
    world.advance(1s);
    controller->stopRecording(player);

    controller->shutdown();
    world.advance(1s);

    EXPECT_EQ(closings(), 1);
    EXPECT_TRUE(areAllFilesComplete());
}

TEST_F(ShutdownStory, leavesAClosedRecordingAlone)
{
    launchPlaying("Player");
    controller->startRecording(player);
    controller->stopRecording(player);
    world.advance(1s);

    controller->shutdown();

    EXPECT_EQ(closings(), 1);
}

TEST_F(ShutdownStory, destroysTheTapsBeforeItClosesTheFiles)
{
    launchPlaying("Player");
    controller->startRecording(player);
    long tapsDown = 0;
    world.audioFiles().whenDisposed([&] { tapsDown = callCount(AudioOperation::destroyTap); });

    controller->shutdown();

    EXPECT_EQ(tapsDown, 1);
    EXPECT_EQ(closings(), 1);
}

TEST_F(ShutdownStory, savesALastMomentChange)
{
    world.advance(1s);
    change(player, [](auto& app) { app.volume = 0.5F; });

    controller->shutdown();

    EXPECT_EQ(saved().apps.at(player).volume, 0.5F);
}

TEST_F(ShutdownStory, endsEveryTimer)
{
    launchPlaying("Player");
    controller->startRecording(player);
    controller->stopRecording(player);
    controller->startRecording(player);

    controller->shutdown();

    EXPECT_EQ(world.mainLoop().timerCount(), 0);
}

TEST_F(ShutdownStory, isSilentAboutABrokenFile)
{
    launchPlaying("Player");
    controller->startRecording(player);
    world.audioFiles().failWriting({28});

    controller->shutdown();

    EXPECT_FALSE(*state().error);
}

TEST_F(ShutdownStory, isIdempotent)
{
    launchPlaying("Player");
    controller->startRecording(player);

    controller->shutdown();
    controller->shutdown();

    EXPECT_EQ(closings(), 1);
}

TEST_F(ShutdownStory, anotherOutputMakesNoTapAfterIt)
{
    launchPlaying("Player");
    controller->shutdown();
    const auto attempts = tapAttempts();

    chooseOutput("com.example.player", "headphones");

    EXPECT_EQ(tapAttempts(), attempts);
}

}  // namespace
}  // namespace fadeloom
