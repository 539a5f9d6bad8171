// SPDX-License-Identifier: MIT
// What ends a recording, or prevents it from starting.
#include "tests/control/RecordingStory.h"

#include <fstream>

namespace fadeloom {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

using RecordingEndStory = RecordingStory;

TEST_F(RecordingEndStory, endsWhenTheOutputChangesItsRate)
{
    launchPlaying("Player");
    record(player);
    world.advance(1s);

    world.changeRate("speakers", 96000);
    world.advance(AudioController::pollInterval);

    EXPECT_FALSE(isRecorded(player));
    EXPECT_EQ(tapOf(player)->sampleRate(), 96000);
    EXPECT_EQ(message(), "Recording of Player stopped: the output device changed its sample rate.");
    EXPECT_TRUE(lastFile().isComplete);
    EXPECT_FALSE(isRecorded(player));
}

TEST_F(RecordingEndStory, ofAnAppThatIsNotRecordedHasNoMessageAboutTheRate)
{
    launchPlaying("Player");

    world.changeRate("speakers", 96000);
    world.advance(AudioController::pollInterval);

    EXPECT_EQ(tapOf(player)->sampleRate(), 96000);
    EXPECT_EQ(message(), "");
}

TEST_F(RecordingEndStory, endsWithItsApp)
{
    const auto pid = launchPlaying("Player");
    record(player);
    world.advance(1s);

    world.quitApp(pid);
    world.runPosted();
    world.advance(ClosingRecordings::delay);

    EXPECT_FALSE(isRecorded(player));
    EXPECT_TRUE(lastFile().isComplete);
    EXPECT_EQ(message(), "");
}

TEST_F(RecordingEndStory, endsWithThePermission)
{
    launchPlaying("Player");
    record(player);

    world.setPermission(SimulatedCapturePermission::denied);
    world.advance(AudioController::pollInterval + ClosingRecordings::delay);

    EXPECT_FALSE(isRecorded(player));
    EXPECT_TRUE(lastFile().isComplete);
    EXPECT_EQ(mixer(), "com.example.player▶");
}

TEST_F(RecordingEndStory, endsWhenItsTapCannotBeMadeAgain)
{
    launchPlaying("Player");
    record(player);
    world.refuse(AudioOperation::createTap, HowOften::always, -50);

    chooseOutput(player, "headphones");

    EXPECT_FALSE(isRecorded(player));
    EXPECT_EQ(tapOf(player), nullptr);
}

TEST_F(RecordingEndStory, aFileThatCannotBeCreatedIsReported)
{
    launchPlaying("Player");
    world.audioFiles().refuseToCreate(TapError{"Create recording file", 28});

    record(player);

    EXPECT_EQ(message(), "Could not start recording: Create recording file failed (OSStatus 28)");
    EXPECT_THAT(*state().recordings, IsEmpty());
    EXPECT_FALSE(isRecorded(player));
}

TEST_F(RecordingEndStory, aFormatThatIsRefusedIsReported)
{
    launchPlaying("Player");
    world.audioFiles().refuseToCreate(TapError{"Set recording format", -50});

    record(player);

    EXPECT_EQ(message(), "Could not start recording: Set recording format failed (OSStatus -50)");
    EXPECT_EQ(world.audioFiles().openCount(), 0);
}

TEST_F(RecordingEndStory, aFolderThatCannotBeMadeIsReported)
{
    launchPlaying("Player");
    std::ofstream(folder.path() / "Music") << "a file where the folder should be";

    record(player);

    EXPECT_THAT(message(), HasSubstr("Could not start recording: "));
    EXPECT_THAT(message(), HasSubstr("Fadeloom Recordings: Not a directory"));
    EXPECT_THAT(*state().recordings, IsEmpty());
}

TEST_F(RecordingEndStory, endsWhenTheDiskIsFullWhilePlaybackContinues)
{
    launchPlaying("Player");
    record(player);
    world.advance(1s);

    world.audioFiles().failWriting({28});
    world.advance(Recording::interval + ClosingRecordings::delay);

    EXPECT_FALSE(isRecorded(player));
    EXPECT_EQ(message(), "Recording of Player stopped: the file could not be written (error 28).");
    EXPECT_TRUE(lastFile().isComplete);
    EXPECT_TRUE(hasLogged("recording failed: com.example.player: error 28"));
    EXPECT_NEAR(heardAt("speakers"), source, tolerance);
}

TEST_F(RecordingEndStory, logsWhatItLost)
{
    launchPlaying("Player");
    record(player);
    world.advance(2s);
    world.audioFiles().setStalled(true);
    world.advance(2s);

    stop(player);
    world.advance(ClosingRecordings::delay);

    EXPECT_TRUE(hasLogged("recording has gaps: com.example.player, 2310 ms lost"));
}

TEST_F(RecordingEndStory, endsWhenTheAppClosesItsAudio)
{
    const auto pid = launchPlaying("Player");
    record(player);
    world.closeAudio(pid);
    world.runPosted();

    EXPECT_FALSE(isRecorded(player));
    EXPECT_THAT(*state().apps, IsEmpty());
}

}  // namespace
}  // namespace fadeloom
