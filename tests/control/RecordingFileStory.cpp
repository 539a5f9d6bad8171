// SPDX-License-Identifier: MIT
// A recording's folder and file name, and when the file is complete.
#include "tests/control/RecordingStory.h"

namespace fadeloom {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

using RecordingFileStory = RecordingStory;

TEST_F(RecordingFileStory, hasTheAppsNameAndTheTime)
{
    using namespace std::chrono;
    world.setDate(sys_days{2025y / 3 / 2} + 14h + 5min + 9s);
    launchPlaying("AC/DC: Live");

    record(state().apps->front().bundleID);

    EXPECT_THAT(files(),
        ElementsAre(folder.path() / "Music" / "Fadeloom Recordings" / "AC-DC- Live 2025-03-02 14.05.09.wav"));
}

TEST_F(RecordingFileStory, goesToTheChosenFolder)
{
    launchPlaying("Player");
    auto settings = this->settings();
    settings.recordingsFolder = folder.path() / "deep" / "er";
    controller->setSettings(settings);

    record(player);

    EXPECT_EQ(files().front().parent_path(), folder.path() / "deep" / "er");
}

TEST_F(RecordingFileStory, isClosedHalfASecondAfterItsEnd)
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

TEST_F(RecordingFileStory, startedAtOnceAfterItsEndIsASecondFile)
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

TEST_F(RecordingFileStory, ofTwoAppsOfOneNameIsTwoFiles)
{
    launchPlaying("Player");
    const auto other = world.launchApp("Player", {.bundleID = "org.other.player"});
    world.startPlaying(other);
    world.runPosted();

    record(player);
    record("org.other.player");

    EXPECT_THAT(files(), SizeIs(2));
}

TEST_F(RecordingFileStory, neverReplacesAnother)
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
    world.advance(10s);
    world.setDate(began);
    const auto afterTheClockWasSetBack = takeOne();

    const auto name = first.stem().string();
    EXPECT_EQ(second.stem(), name + " 2");
    EXPECT_EQ(third.stem(), name + " 3");
    EXPECT_EQ(afterTheClockWasSetBack.stem(), name + " 4");
    EXPECT_THAT(files(), SizeIs(4));
}

TEST_F(RecordingFileStory, usesAnotherNameIfOnlyTheCaseDiffers)
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

TEST_F(RecordingFileStory, isShownInTheFileManager)
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
