// SPDX-License-Identifier: MIT
// What is recorded of an app.
#include "tests/control/RecordingStory.h"

namespace fadeloom {
namespace {

using testing::Each;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

TEST_F(RecordingStory, writesWhatTheAppPlays)
{
    launchPlaying("Player");

    record(player);
    EXPECT_TRUE(isRecorded(player));
    EXPECT_EQ(state().recordings->at(player), world.date());
    world.advance(2s);
    stop(player);
    world.advance(ClosingRecordings::delay);

    EXPECT_FALSE(isRecorded(player));
    EXPECT_EQ(lastFile().sampleRate, 48000);
    EXPECT_NEAR(static_cast<double>(lastFile().frameCount()), 96000, 2048);
    EXPECT_THAT(lastFile().samples, Each(source));
}

TEST_F(RecordingStory, writesTheUnprocessedAudio)
{
    launchPlaying("Player");
    change(player, [](auto& app) {
        app.muted = true;
        app.volume = 0.5F;
        app.eqEnabled = true;
        app.eqGains.fill(12);
    });

    record(player);
    world.advance(1s);
    stop(player);
    world.advance(ClosingRecordings::delay);

    EXPECT_THAT(lastFile().samples, Not(IsEmpty()));
    EXPECT_THAT(lastFile().samples, Each(source));
}

TEST_F(RecordingStory, needsAnAppThatPlays)
{
    record(player);

    EXPECT_EQ(message(), "Start playback in this app first, then press record.");
    EXPECT_THAT(*state().recordings, IsEmpty());
}

TEST_F(RecordingStory, startedTwiceIsOne)
{
    launchPlaying("Player");

    record(player);
    world.advance(1500ms);
    record(player);

    EXPECT_THAT(files(), SizeIs(1));
    EXPECT_EQ(state().recordings->at(player), world.date() - 1500ms);
}

TEST_F(RecordingStory, stoppedTwiceOrNeverStartedIsNothing)
{
    launchPlaying("Player");
    stop(player);
    EXPECT_FALSE(*state().lastRecording);

    record(player);
    stop(player);
    stop(player);
    world.advance(1s);

    EXPECT_EQ(closings(), 1);
    EXPECT_EQ(message(), "");
}

TEST_F(RecordingStory, ofSeveralAppsRunConcurrently)
{
    launchPlaying("Player");
    world.startPlaying(world.launchApp("Radio"), SimulatedSignal::constant(0.5F));
    world.runPosted();
    record(player);
    record("com.example.radio");
    world.advance(1s);

    stop(player);
    world.advance(ClosingRecordings::delay);
    EXPECT_THAT(lastFile().samples, Each(source));
    stop("com.example.radio");
    world.advance(ClosingRecordings::delay);
    EXPECT_THAT(lastFile().samples, Each(0.5F));
}

TEST_F(RecordingStory, continuesWhenTheAppMovesToAnotherOutput)
{
    launchPlaying("Player");
    record(player);
    world.advance(1s);

    chooseOutput(player, "headphones");
    world.advance(1s);

    EXPECT_TRUE(isRecorded(player));
    stop(player);
    world.advance(ClosingRecordings::delay);
    EXPECT_NEAR(static_cast<double>(lastFile().frameCount()), 96000, 1440);
}

TEST_F(RecordingStory, noTimerRunsWithoutRecordings)
{
    launchPlaying("Player");
    const auto idle = world.mainLoop().timerCount();
    record(player);
    EXPECT_EQ(world.mainLoop().timerCount(), idle + 1);

    stop(player);
    world.advance(ClosingRecordings::delay);

    EXPECT_EQ(world.mainLoop().timerCount(), idle);
}

}  // namespace
}  // namespace fadeloom
