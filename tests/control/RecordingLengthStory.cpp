// SPDX-License-Identifier: MIT
// A recording is as long as the elapsed time, whatever its app does meanwhile.
#include "tests/control/ControllerStory.h"

namespace fadeloom {
namespace {

using testing::Each;

class RecordingLengthStory : public ControllerStory {
protected:
    RecordingLengthStory() { start(); }

    const SimulatedAudioContent& recorded() { return *world.audioFiles().at(**state().lastRecording); }

    const std::string player = "com.example.player";
};

TEST_F(RecordingLengthStory, isAsLongAsTheElapsedTimeWhateverItsAppDoes)
{
    const auto pid = launchPlaying("Player");
    controller->startRecording(player);
    world.advance(4s);
    world.stopPlaying(pid);
    world.audioWorld().setCycleInterval(0ms);  // The device stops with its last app.
    world.advance(15s);
    EXPECT_TRUE(state().recordings->contains(player));
    world.audioWorld().setCycleInterval(10ms);
    world.startPlaying(pid);
    world.advance(4s);
    controller->stopRecording(player);
    world.advance(ClosingRecordings::delay);

    EXPECT_NEAR(static_cast<double>(recorded().frameCount()), 48000 * 23, 960 + 480);
    const auto at = [&](int second) {
        return recorded().samples.at(static_cast<std::size_t>(2 * 48000 * second));
    };
    EXPECT_EQ(at(2), source);
    EXPECT_EQ(at(10), 0);
    EXPECT_EQ(at(20), source);
}

TEST_F(RecordingLengthStory, begunWhileItsAppIsPausedIsSilentUntilItPlays)
{
    const auto pid = launchPlaying("Player");
    world.stopPlaying(pid);
    world.audioWorld().setCycleInterval(0ms);
    world.advance(1s);
    controller->startRecording(player);
    world.advance(3s);
    controller->stopRecording(player);
    world.advance(ClosingRecordings::delay);

    EXPECT_NEAR(static_cast<double>(recorded().frameCount()), 48000 * 3, 960 + 480);
    EXPECT_THAT(recorded().samples, Each(0));
}

}  // namespace
}  // namespace fadeloom
