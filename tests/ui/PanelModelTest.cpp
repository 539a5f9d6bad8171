// SPDX-License-Identifier: MIT
#include "tests/ui/PanelStory.h"

#include <QAbstractItemModelTester>

namespace fadeloom {
namespace {

class PanelModelTest : public PanelStory { };

TEST_F(PanelModelTest, rowsFollowTheControllersOrderAndKeepTheirIdentity)
{
    open();
    const QAbstractItemModelTester tester(
        panel->rows(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    const auto radio = launchPlaying("Radio");
    launchPlaying("Player");
    auto* const radioRow = &row(1);
    EXPECT_EQ(radioRow->name(), "Radio");

    launchPlaying("Zither");
    world.quitApp(radio);
    launchPlaying("Accordion");
    world.advance(5s);

    ASSERT_EQ(panel->rows()->rowCount(), 3);
    EXPECT_EQ(row(0).name(), "Accordion");
    EXPECT_EQ(row(1).name(), "Player");
    EXPECT_EQ(row(2).name(), "Zither");
}

TEST_F(PanelModelTest, aRowStaysTheSameWhenTheOrderChanges)
{
    open();
    const auto pid = launchPlaying("Accordion");
    launchPlaying("Player");
    auto* const accordion = &row(0);

    world.stopPlaying(pid);
    world.advance(5s);

    EXPECT_EQ(&row(1), accordion);
    EXPECT_EQ(accordion->status(), "Idle");
}

TEST_F(PanelModelTest, mutingTwiceLeavesNoEntry)
{
    open();
    launchPlaying("Player");

    row(0).toggleMuted();
    EXPECT_TRUE(settings().apps.at(player).muted);
    EXPECT_TRUE(row(0).isMuted());
    row(0).toggleMuted();

    EXPECT_TRUE(settings().apps.empty());
}

TEST_F(PanelModelTest, aDraggedVolumeSnapsAndIsLimited)
{
    open();
    launchPlaying("Player");

    row(0).setVolume(0.5);
    EXPECT_EQ(row(0).percent(), "50%");
    row(0).setVolume(1.7);

    EXPECT_EQ(row(0).volume(), 1);
    EXPECT_TRUE(settings().apps.empty());
}

TEST_F(PanelModelTest, aStoredVolumeAboveTheLimitIsShownClamped)
{
    start();
    setVolumeLimit(1);
    change(player, [](auto& app) { app.volume = 1.5F; });
    panel.emplace(*controller, around.parts());
    launchPlaying("Player");

    EXPECT_EQ(row(0).percent(), "100%");
    EXPECT_EQ(row(0).volume(), 1);
    EXPECT_FALSE(row(0).isBoosted());

    row(0).setVolume(0.9);
    EXPECT_EQ(row(0).percent(), "90%");
}

TEST_F(PanelModelTest, aLoweredLimitLowersTheShownVolume)
{
    open();
    launchPlaying("Player");
    panel->settings()->chooseVolumeLimit("2");
    row(0).setVolume(1.5);
    ASSERT_TRUE(row(0).isBoosted());

    panel->settings()->chooseVolumeLimit("0");

    EXPECT_EQ(row(0).percent(), "100%");
    EXPECT_FALSE(row(0).isBoosted());
}

TEST_F(PanelModelTest, theCallBannerHidesTheErrorUntilTheCallEnds)
{
    auto given = SettingsData();
    given.focus.callApps = {"com.example.phone"};
    givenSettings(given);
    open();
    launchPlaying("Player");
    controller->saveUserPreset("rock", player);
    EXPECT_EQ(panel->banner(), PanelModel::Banner::Error);
    EXPECT_EQ(panel->bannerText(), "“rock” is a built-in preset name. Choose another name.");

    const auto phone = launchPlaying("Phone");
    world.startUsingMic(phone);
    world.advance(5s);
    EXPECT_EQ(panel->banner(), PanelModel::Banner::Call);
    EXPECT_EQ(panel->bannerText(), "Phone is on a call. Other apps lowered to 20%");
    EXPECT_EQ(row(1).status(), "Lowered for call");

    world.stopUsingMic(phone);
    world.advance(5s);
    EXPECT_EQ(panel->banner(), PanelModel::Banner::Error);
    panel->dismissError();
    EXPECT_EQ(panel->banner(), PanelModel::Banner::None);
}

TEST_F(PanelModelTest, aRecordingShowsItsTimeAndThenItsFile)
{
    open();
    launchPlaying("Player");
    world.advance(1s);

    row(0).startRecording();
    world.advance(7s);
    EXPECT_EQ(row(0).elapsed(), "0:07");
    EXPECT_EQ(row(0).status(), "Recording");
    row(0).stopRecording();
    world.advance(1s);

    EXPECT_EQ(row(0).elapsed(), "");
    EXPECT_THAT(panel->lastRecording().toStdString(), testing::StartsWith("Player "));
}

TEST_F(PanelModelTest, aMutedAppsMeterIsAtZero)
{
    open();
    launchPlaying("Player");
    controller->levels().show({{player, 0.5F}});
    EXPECT_EQ(row(0).level(), 0.5);

    row(0).toggleMuted();

    EXPECT_EQ(row(0).level(), 0);
}

TEST_F(PanelModelTest, thePageFollowsTheSettingsThenThePermission)
{
    world.setPermission(SimulatedCapturePermission::denied);
    open();
    EXPECT_EQ(panel->page(), PanelModel::Page::Permission);
    EXPECT_TRUE(panel->isAccessDenied());

    panel->setShowsSettings(true);
    EXPECT_EQ(panel->page(), PanelModel::Page::Settings);
    panel->setShowsSettings(false);
    world.setPermission(SimulatedCapturePermission::granted);
    world.advance(5s);

    EXPECT_EQ(panel->page(), PanelModel::Page::Mixer);
}

TEST_F(PanelModelTest, choosingTheSystemOutputMovesTheCheckmark)
{
    open();
    const auto other = entry(panel->outputEntries(), entry(panel->outputEntries(), 0).isChecked ? 1 : 0);
    ASSERT_FALSE(other.isChecked);

    panel->chooseOutput(other.key);
    world.runPosted();

    EXPECT_EQ(panel->output(), other.text);
    const auto entries = panel->outputEntries();
    for (qsizetype i = 0; i < entries.size(); ++i)
        EXPECT_EQ(entry(entries, i).isChecked, entry(entries, i).key == other.key) << i;
}

TEST_F(PanelModelTest, anUpdateIsOfferedOnceItIsKnown)
{
    open();
    EXPECT_EQ(panel->availableVersion(), "");

    around.publish("1.1");

    EXPECT_EQ(panel->availableVersion(), "1.1");
    panel->openDownloadPage();
    EXPECT_THAT(world.workspace().opened(), testing::ElementsAre("https://updates.example/download.php"));
}

TEST_F(PanelModelTest, aProgramThatLooksForNoUpdatesOffersNone)
{
    start();
    auto parts = around.parts();
    parts.updates = nullptr;
    PanelModel silent(*controller, parts);

    silent.openDownloadPage();

    EXPECT_EQ(silent.availableVersion(), "");
    EXPECT_THAT(world.workspace().opened(), testing::IsEmpty());
    EXPECT_THAT(world.http().requests(), testing::IsEmpty());
}

TEST_F(PanelModelTest, theSystemSettingsOpenOnThePageOfThePermission)
{
    world.setPermission(SimulatedCapturePermission::denied);
    open();

    panel->openPrivacySettings();

    EXPECT_THAT(world.workspace().opened(), testing::ElementsAre(std::string(AudioPermission::settingsURL)));
}

}  // namespace
}  // namespace fadeloom
