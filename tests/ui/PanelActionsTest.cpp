// SPDX-License-Identifier: MIT
// Buttons with effects beyond the settings: on the audio system, the permission, recordings, pages.
#include "tests/ui/LivePanel.h"
#include "tests/ui/PanelStage.h"

namespace fadeloom {
namespace {

class PanelActionsTest : public PanelStage {
protected:
    PanelActionsTest() { english = speaking("en"); }
    ~PanelActionsTest() override
    {
        view.reset();  // Before the panel that it shows.
        window.reset();
        engine.reset();
    }

    void showLive(const QString& expandedApp = {})
    {
        show(*live.panel, expandedApp);
        QTest::qWait(20);
    }
    /// An entry of the menu opened last.
    QQuickItem* menuItem(const QString& name)
    {
        QQuickItem* found = nullptr;
        for (auto* const child : window->contentItem()->childItems())
            for (auto* const popup : child->childItems())
                if (auto* const item = find(name, QAccessible::MenuItem, popup))
                    found = item;
        return found;
    }
    [[nodiscard]] const ControllerState& state() const { return live.controller->state(); }

    const std::string player = "com.example.player";
    std::unique_ptr<QTranslator> english;
    LivePanel live;
};

TEST_F(PanelActionsTest, retryTapsAnAppThatCouldNotBeTapped)
{
    live.start();
    live.world.refuse(AudioOperation::createTap, HowOften::once);
    live.play("Player");
    ASSERT_TRUE(state().tapErrors->contains(player));
    showLive();

    press(link("Retry"));

    EXPECT_FALSE(state().tapErrors->contains(player));
    EXPECT_NE(live.controller->tapOf(player), nullptr);
    QTest::qWait(20);
    EXPECT_FALSE(link("Retry"));
}

TEST_F(PanelActionsTest, continueAsksForThePermission)
{
    live.world.setPermission(SimulatedCapturePermission::undecided);
    live.start();
    showLive();
    ASSERT_EQ(live.world.capturePermission().promptCount(), 0U);

    click(button("Continue"));

    EXPECT_EQ(live.world.capturePermission().promptCount(), 1U);
}

TEST_F(PanelActionsTest, openSystemSettingsLeadsToThePrivacySettings)
{
    live.world.setPermission(SimulatedCapturePermission::denied);
    live.start();
    showLive();

    click(button("Open System Settings"));

    EXPECT_EQ(live.world.workspace().opened(), std::vector{std::string(AudioPermission::settingsURL)});
}

TEST_F(PanelActionsTest, aNewVersionLeadsToItsPage)
{
    live.start();
    live.around.publish("1.1");
    showLive();

    click(button("Update 1.1"));

    EXPECT_EQ(live.world.workspace().opened(), std::vector<std::string>{live.around.updates.downloadURL()});
}

TEST_F(PanelActionsTest, aRecordingIsStartedStoppedAndShownByItsButtons)
{
    live.start();
    live.play("Player");
    showLive(QString::fromStdString(player));

    press(button("Start"));
    EXPECT_TRUE(state().recordings->contains(player));
    live.world.advance(std::chrono::seconds(2));
    QTest::qWait(20);
    press(button("Stop"));
    EXPECT_TRUE(state().recordings->empty());

    QTest::qWait(20);
    press(link("Show in Files"));
    ASSERT_TRUE(*state().lastRecording);
    EXPECT_EQ(live.world.workspace().revealed(), std::vector<std::filesystem::path>{**state().lastRecording});
}

TEST_F(PanelActionsTest, aFolderForRecordingsIsChosen)
{
    live.start();
    live.panel->setShowsSettings(true);
    showLive();

    press(button("Change…"));
    live.world.dialogs().answer("/elsewhere");

    EXPECT_EQ(state().settings->recordingsFolder, "/elsewhere");
}

TEST_F(PanelActionsTest, thePagesOfTheProgramAreOpened)
{
    live.start();
    live.panel->setShowsSettings(true);
    showLive();

    press(link("fadeloom.example"));
    EXPECT_EQ(live.world.workspace().opened(), std::vector<std::string>{"https://fadeloom.example/"});

    press(link("About Fadeloom 1.0"));
    EXPECT_TRUE(live.world.application().aboutPanel());
}

TEST_F(PanelActionsTest, aPresetOfTheUsersIsDeleted)
{
    live.start();
    live.play("Player");
    live.controller->saveUserPreset("Evening", player);
    ASSERT_EQ(state().settings->userPresets.size(), 1U);
    showLive(QString::fromStdString(player));

    click(button("Equalizer preset, Evening"));
    QTest::qWait(50);
    click(menuItem("Delete Preset"));
    QTest::qWait(50);
    click(menuItem("Evening"));

    EXPECT_TRUE(state().settings->userPresets.empty());
}

}  // namespace
}  // namespace fadeloom
