// SPDX-License-Identifier: MIT
// The recordings folder, and how the user selects it.
#include "tests/control/ControllerStory.h"

namespace fadeloom {
namespace {

using testing::SizeIs;

class RecordingFolderStory : public ControllerStory {
protected:
    RecordingFolderStory() { start(); }

    const std::string player = "com.example.player";
};

TEST_F(RecordingFolderStory, createsItsFolderIfMissing)
{
    launchPlaying("Player");
    const auto recordings = controller->recordingsFolder();
    EXPECT_FALSE(std::filesystem::exists(recordings));

    controller->startRecording(player);
    EXPECT_TRUE(std::filesystem::is_directory(recordings));
    controller->stopRecording(player);
    world.advance(1s);
    controller->startRecording(player);

    EXPECT_EQ(message(), "");
    EXPECT_EQ(world.audioFiles().locations().size(), 2U) << "the folder that is there serves again";
}

TEST_F(RecordingFolderStory, itsFolderIsChosenInADialog)
{
    const auto chosen = folder.path() / "tapes";
    controller->chooseRecordingsFolder("Wählen");
    ASSERT_THAT(world.dialogs().questions(), SizeIs(1));
    EXPECT_EQ(world.dialogs().questions().front().start, controller->recordingsFolder());
    EXPECT_EQ(world.dialogs().questions().front().prompt, "Wählen");
    EXPECT_EQ(world.application().activationCount(), 1);

    world.dialogs().answer(chosen);
    world.advance(1s);

    EXPECT_EQ(controller->recordingsFolder(), chosen);
    EXPECT_EQ(saved().recordingsFolder, chosen.string());
}

TEST_F(RecordingFolderStory, aCancelledDialogChangesNothing)
{
    controller->chooseRecordingsFolder("Wählen");

    world.dialogs().answer(std::nullopt);

    EXPECT_FALSE(settings().recordingsFolder);
    EXPECT_FALSE(isSaveWaiting());
}

TEST_F(RecordingFolderStory, aDialogMayOutliveTheController)
{
    controller->chooseRecordingsFolder("Wählen");
    end();

    world.dialogs().answer("/somewhere");

    world.advance(1s);
    EXPECT_EQ(saved().recordingsFolder, std::nullopt);
}

}  // namespace
}  // namespace fadeloom
