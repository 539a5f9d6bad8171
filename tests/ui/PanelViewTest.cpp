// SPDX-License-Identifier: MIT
// Interaction with the views: clicks, drags, keys, and accessibility actions. What is checked is the effect on the
// controller, not how a control looks afterwards.
#include "engine/EQPresets.h"
#include "tests/ui/PanelStage.h"

namespace fadeloom {
namespace {

class PanelViewTest : public PanelStage { };

TEST_F(PanelViewTest, muteIsAClick)
{
    show(demoContents(Theme::dark));

    click(button("Mute Music"));
    EXPECT_TRUE(music().muted);
    click(button("Unmute Music"));

    EXPECT_FALSE(music().muted);
}

TEST_F(PanelViewTest, muteIsAnActionOfAssistivePrograms)
{
    show(demoContents(Theme::dark));

    press(button("Mute Music"));

    EXPECT_TRUE(music().muted);
}

TEST_F(PanelViewTest, aDraggedFaderSetsTheVolume)
{
    show(demoContents(Theme::dark));
    auto* const fader = slider("Music volume");
    ASSERT_TRUE(fader);

    QTest::mousePress(window.get(), Qt::LeftButton, {}, at(fader, 200, 8));
    QTest::mouseMove(window.get(), at(fader, 180, 8));
    QTest::mouseMove(window.get(), at(fader, 145, 8));
    QTest::mouseRelease(window.get(), Qt::LeftButton, {}, at(fader, 145, 8));

    EXPECT_NEAR(music().volume, 0.5F, 0.01F);
}

TEST_F(PanelViewTest, aFaderNearTheFullLevelSnaps)
{
    show(demoContents(Theme::dark));
    auto* const fader = slider("Music volume");
    ASSERT_TRUE(fader);

    auto* const values = QAccessible::queryAccessibleInterface(fader)->valueInterface();
    ASSERT_TRUE(values);
    values->setCurrentValue(97);

    EXPECT_EQ(music().volume, 1);
    EXPECT_EQ(values->currentValue().toDouble(), 100);
}

TEST_F(PanelViewTest, aVolumeSetByAssistiveTechnologyKeepsTheBinding)
{
    show(demoContents(Theme::dark));
    auto* const fader = slider("Music volume");
    ASSERT_TRUE(fader);
    auto* const values = QAccessible::queryAccessibleInterface(fader)->valueInterface();
    EXPECT_EQ(values->maximumValue().toDouble(), 100);

    values->setCurrentValue(25);
    EXPECT_EQ(music().volume, 0.25F);
    demo->controller.editApp("com.apple.Music", [](auto& app) { app.volume = 0.75F; });

    EXPECT_EQ(values->currentValue().toDouble(), 75);
}

TEST_F(PanelViewTest, aDoubleClickOnThePercentageResets)
{
    show(demoContents(Theme::dark));

    doubleClick(find("85%", QAccessible::StaticText));

    EXPECT_EQ(music().volume, 1);
}

TEST_F(PanelViewTest, oneRowIsOpenAtATime)
{
    show(demoContents(Theme::dark));

    click(button("Expand Music"));
    EXPECT_TRUE(button("Collapse"));
    EXPECT_TRUE(button("Expand Safari"));
    press(button("Expand Safari"));

    EXPECT_TRUE(button("Expand Music"));
    EXPECT_FALSE(button("Expand Safari"));
    click(button("Collapse"));
    EXPECT_FALSE(button("Collapse"));
}

TEST_F(PanelViewTest, aBandIsDraggedInIntegerDecibels)
{
    show(demoContents(Theme::dark), musicID);
    auto* const band = slider("1k hertz");
    ASSERT_TRUE(band);

    QTest::mouseClick(window.get(), Qt::LeftButton, {}, at(band, 16, 1));
    EXPECT_EQ(music().eqGains.at(5), 12);
    QTest::mouseClick(window.get(), Qt::LeftButton, {}, at(band, 16, 95));

    EXPECT_EQ(music().eqGains.at(5), -12);
    EXPECT_EQ(music().eqPresetName, std::nullopt);
}

TEST_F(PanelViewTest, aBandGoesUpAndDownByKeysAndStopsAtTheEdge)
{
    show(demoContents(Theme::dark), musicID);
    auto* const band = slider("32 hertz");
    ASSERT_TRUE(band);
    band->forceActiveFocus(Qt::TabFocusReason);

    for (int i = 0; i < 10; ++i)
        QTest::keyClick(window.get(), Qt::Key_Up);
    EXPECT_EQ(music().eqGains.at(0), 12);
    QTest::keyClick(window.get(), Qt::Key_Down);

    EXPECT_EQ(music().eqGains.at(0), 11);
}

TEST_F(PanelViewTest, aBandIsSetByAssistivePrograms)
{
    show(demoContents(Theme::dark), musicID);
    auto* const band = slider("32 hertz");
    ASSERT_TRUE(band);

    QAccessible::queryAccessibleInterface(band)->valueInterface()->setCurrentValue(-7);

    EXPECT_EQ(music().eqGains.at(0), -7);
}

TEST_F(PanelViewTest, theSwitchTurnsTheEqualizerOff)
{
    show(demoContents(Theme::dark), musicID);

    press(find("Equalizer", QAccessible::CheckBox));

    EXPECT_FALSE(music().eqEnabled);
}

TEST_F(PanelViewTest, aPresetIsChosenByKeys)
{
    show(demoContents(Theme::dark), musicID);

    click(button("Equalizer preset, Rock"));
    QTest::keyClick(window.get(), Qt::Key_Down);
    QTest::keyClick(window.get(), Qt::Key_Return);

    EXPECT_EQ(music().eqPresetName, "Soul");
}

TEST_F(PanelViewTest, escapeClosesTheMenuAndChangesNothing)
{
    show(demoContents(Theme::dark), musicID);

    click(button("Equalizer preset, Rock"));
    QTest::keyClick(window.get(), Qt::Key_Down);
    QTest::keyClick(window.get(), Qt::Key_Escape);
    QTest::keyClick(window.get(), Qt::Key_Return);

    EXPECT_EQ(music().eqPresetName, "Rock");
}

TEST_F(PanelViewTest, aPresetIsNamedAndSaved)
{
    show(demoContents(Theme::dark), musicID);

    demo->controller.applyPreset(EQPresets::flat(), "com.apple.Music");
    click(button("Equalizer preset, Flat"));
    // Upwards from the first entry the selection wraps to the last ones: first "Reset to Flat".
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(window.get(), Qt::Key_Up);
    QTest::keyClick(window.get(), Qt::Key_Return);
    for (const char letter : std::string("Evening"))
        QTest::keyClick(window.get(), letter);
    QTest::keyClick(window.get(), Qt::Key_Return);

    EXPECT_EQ(music().eqPresetName, "Evening");
    EXPECT_EQ(demo->controller.state().settings->userPresets.size(), 1U);
}

TEST_F(PanelViewTest, withoutAppsThereIsTheEmptyStateAndNoList)
{
    auto contents = demoContents(Theme::dark);
    contents.apps.clear();
    show(contents);

    EXPECT_TRUE(isSeen("Nothing is playing"));
    EXPECT_FALSE(button("Mute Music"));
}

TEST_F(PanelViewTest, theHeaderLeadsToTheSettingsAndBack)
{
    show(demoContents(Theme::dark));

    click(button("Settings"));
    EXPECT_TRUE(isSeen("Focus Mode"));
    press(button("Back"));

    EXPECT_FALSE(isSeen("Focus Mode"));
    EXPECT_TRUE(button("Mute Music"));
}

TEST_F(PanelViewTest, theListGrowsUpToItsLimit)
{
    auto contents = demoContents(Theme::dark);
    show(contents);
    EXPECT_EQ(view->implicitHeight(), 465);

    for (int i = 0; i < 8; ++i)
        contents.apps.push_back({.bundleID = "app" + std::to_string(i), .name = "App"});
    view.reset();
    show(contents);

    EXPECT_EQ(view->implicitHeight(), 47 + 39 + 460);
}

TEST_F(PanelViewTest, quitAsksTheProgram)
{
    show(demoContents(Theme::dark));

    press(button("Quit Fadeloom"));

    EXPECT_EQ(demo->around.quits, 1);
}

}  // namespace
}  // namespace fadeloom
