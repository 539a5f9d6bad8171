// SPDX-License-Identifier: MIT
// How an app is recorded, and what ends a recording.
#include "tests/control/ControllerStory.h"

#include <fstream>

namespace fadeloom {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::EndsWith;
using testing::FloatNear;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Key;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

class RecordingStory : public ControllerStory {
protected:
    RecordingStory() { start(); }

    void record(const std::string& bundleID) { controller->startRecording(bundleID); }
    void stop(const std::string& bundleID) { controller->stopRecording(bundleID); }
    bool isRecorded(const std::string& bundleID) { return state().recordings->contains(bundleID); }
    std::vector<std::filesystem::path> files() { return world.audioFiles().locations(); }
    const SimulatedAudioContent& lastFile() { return *world.audioFiles().at(**state().lastRecording); }
    long closings()
    {
        return std::ranges::count_if(world.audioFiles().journal(),
            [](const std::string& call) { return call.starts_with("dispose"); });
    }

    const std::string player = "com.example.player";
};

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

TEST_F(RecordingStory, hasTheAppsNameAndTheTime)
{
    using namespace std::chrono;
    world.setDate(sys_days{2025y / 3 / 2} + 14h + 5min + 9s);
    launchPlaying("AC/DC: Live");

    record(state().apps->front().bundleID);

    EXPECT_THAT(files(),
        ElementsAre(folder.path() / "Music" / "Fadeloom Recordings" / "AC-DC- Live 2025-03-02 14.05.09.wav"));
}

TEST_F(RecordingStory, goesToTheChosenFolder)
{
    launchPlaying("Player");
    auto settings = this->settings();
    settings.recordingsFolder = folder.path() / "deep" / "er";
    controller->setSettings(settings);

    record(player);

    EXPECT_EQ(files().front().parent_path(), folder.path() / "deep" / "er");
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

TEST_F(RecordingStory, isClosedHalfASecondAfterItsEnd)
{
    launchPlaying("Player");
    record(player);
    world.advance(1s);

    stop(player);
    EXPECT_FALSE(isRecorded(player));
    world.advance(ClosingRecordings::delay - 1ms);
    EXPECT_EQ(closings(), 0);
    world.advance(1ms);

    EXPECT_EQ(closings(), 1);
    EXPECT_TRUE(lastFile().isComplete);
}

TEST_F(RecordingStory, startedAtOnceAfterItsEndIsASecondFile)
{
    launchPlaying("Player");
    record(player);
    world.advance(100ms);
    stop(player);
    const auto first = **state().lastRecording;

    record(player);
    world.advance(ClosingRecordings::delay);
    EXPECT_EQ(closings(), 1);
    stop(player);
    world.advance(1s);

    EXPECT_THAT(files(), SizeIs(2));
    EXPECT_NE(**state().lastRecording, first);
    EXPECT_EQ(world.audioFiles().at(first)->frameCount(), 4800U);
    EXPECT_TRUE(world.audioFiles().at(first)->isComplete);
    EXPECT_TRUE(lastFile().isComplete);
}

TEST_F(RecordingStory, ofTwoAppsOfOneNameIsTwoFiles)
{
    launchPlaying("Player");
    const auto other = world.launchApp("Player", {.bundleID = "org.other.player"});
    world.startPlaying(other);
    world.runPosted();

    record(player);
    record("org.other.player");

    EXPECT_THAT(files(), SizeIs(2));
}

TEST_F(RecordingStory, neverReplacesAnother)
{
    launchPlaying("Player");
    const auto takeOne = [&] {
        record(player);
        world.advance(100ms);
        stop(player);
        return **state().lastRecording;
    };
    const auto began = world.date();

    const auto first = takeOne();
    const auto second = takeOne();
    const auto third = takeOne();
    world.advance(1h);
    world.setDate(began);
    const auto afterTheClockWasSetBack = takeOne();

    const auto name = first.stem().string();
    EXPECT_EQ(second.stem(), name + " 2");
    EXPECT_EQ(third.stem(), name + " 3");
    EXPECT_EQ(afterTheClockWasSetBack.stem(), name + " 4");
    EXPECT_THAT(files(), SizeIs(4));
}

TEST_F(RecordingStory, usesAnotherNameIfOnlyTheCaseDiffers)
{
    world.audioFiles().foldCase();
    launchPlaying("Player");
    world.startPlaying(world.launchApp("PLAYER", {.bundleID = "org.other.player"}));
    world.runPosted();

    record(player);
    record("org.other.player");

    std::vector<std::string> names;
    for (const auto& file : files())
        names.push_back(file.stem().string());
    EXPECT_THAT(names, Contains(AllOf(StartsWith("PLAYER "), EndsWith(" 2"))));
    EXPECT_THAT(names, Contains(AllOf(StartsWith("Player "), Not(EndsWith(" 2")))));
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

TEST_F(RecordingStory, endsWhenTheOutputChangesItsRate)
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

TEST_F(RecordingStory, ofAnAppThatIsNotRecordedHasNoMessageAboutTheRate)
{
    launchPlaying("Player");

    world.changeRate("speakers", 96000);
    world.advance(AudioController::pollInterval);

    EXPECT_EQ(tapOf(player)->sampleRate(), 96000);
    EXPECT_EQ(message(), "");
}

TEST_F(RecordingStory, endsWithItsApp)
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

TEST_F(RecordingStory, endsWithThePermission)
{
    launchPlaying("Player");
    record(player);

    world.setPermission(SimulatedCapturePermission::denied);
    world.advance(AudioController::pollInterval + ClosingRecordings::delay);

    EXPECT_FALSE(isRecorded(player));
    EXPECT_TRUE(lastFile().isComplete);
    EXPECT_EQ(mixer(), "com.example.player▶");
}

TEST_F(RecordingStory, endsWhenItsTapCannotBeMadeAgain)
{
    launchPlaying("Player");
    record(player);
    world.refuse(AudioOperation::createTap, HowOften::always, -50);

    chooseOutput(player, "headphones");

    EXPECT_FALSE(isRecorded(player));
    EXPECT_EQ(tapOf(player), nullptr);
}

TEST_F(RecordingStory, aFileThatCannotBeCreatedIsReported)
{
    launchPlaying("Player");
    world.audioFiles().refuseToCreate(TapError{"Create recording file", 28});

    record(player);

    EXPECT_EQ(message(), "Could not start recording: Create recording file failed (OSStatus 28)");
    EXPECT_THAT(*state().recordings, IsEmpty());
    EXPECT_FALSE(isRecorded(player));
}

TEST_F(RecordingStory, aFormatThatIsRefusedIsReported)
{
    launchPlaying("Player");
    world.audioFiles().refuseToCreate(TapError{"Set recording format", -50});

    record(player);

    EXPECT_EQ(message(), "Could not start recording: Set recording format failed (OSStatus -50)");
    EXPECT_EQ(world.audioFiles().openCount(), 0);
}

TEST_F(RecordingStory, aFolderThatCannotBeMadeIsReported)
{
    launchPlaying("Player");
    std::ofstream(folder.path() / "Music") << "a file where the folder should be";

    record(player);

    EXPECT_THAT(message(), HasSubstr("Could not start recording: "));
    EXPECT_THAT(message(), HasSubstr("Fadeloom Recordings: Not a directory"));
    EXPECT_THAT(*state().recordings, IsEmpty());
}

TEST_F(RecordingStory, endsWhenTheDiskIsFullWhilePlaybackContinues)
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

TEST_F(RecordingStory, logsWhatItLost)
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

TEST_F(RecordingStory, endsWhenTheAppClosesItsAudio)
{
    const auto pid = launchPlaying("Player");
    record(player);
    world.closeAudio(pid);
    world.runPosted();

    EXPECT_FALSE(isRecorded(player));
    EXPECT_THAT(*state().apps, IsEmpty());
}

TEST_F(RecordingStory, isShownInTheFileManager)
{
    controller->revealLastRecording();
    EXPECT_THAT(world.workspace().revealed(), IsEmpty());
    launchPlaying("Player");
    record(player);
    stop(player);

    controller->revealLastRecording();

    EXPECT_THAT(world.workspace().revealed(), ElementsAre(**state().lastRecording));
}

}  // namespace
}  // namespace fadeloom
