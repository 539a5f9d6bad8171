// SPDX-License-Identifier: MIT
// The views under the hand: clicks, drags, keys, and the actions of assistive programs. What counts is what the
// controller makes of it, not how a control looks afterwards.
#include "engine/EQPresets.h"
#include "tests/ui/DemoPanel.h"
#include "tests/ui/PanelTest.h"
#include "ui/SettingsEditing.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

namespace fadeloom {
namespace {

class PanelViewTest : public PanelTest {
protected:
    void show(DemoContents contents, const QString& expandedApp = {})
    {
        contents.settings.appearance.animations = false;
        demo = std::make_unique<DemoPanel>(std::move(contents));
        engine = std::make_unique<PanelEngine>();
        view = engine->makeRootView(demo->panel, expandedApp);
        ASSERT_TRUE(view);
        window = std::make_unique<QQuickWindow>();
        window->resize(380, 600);
        view->setParentItem(window->contentItem());
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        window->requestActivate();
        QTest::qWait(1);
    }
    ~PanelViewTest() override
    {
        view.reset();
        window.reset();
    }

    static QString nameOf(QQuickItem* item)
    {
        auto* const interface = QAccessible::queryAccessibleInterface(item);
        return interface ? interface->text(QAccessible::Name) : QString();
    }
    /// The item that assistive programs know by this name and role; null without one.
    QQuickItem* find(const QString& name, QAccessible::Role role, QQuickItem* in = nullptr)
    {
        for (auto* const child : (in ? in : view.get())->childItems()) {
            if (!child->isVisible())
                continue;
            auto* const interface = QAccessible::queryAccessibleInterface(child);
            if (interface && interface->role() == role && nameOf(child) == name)
                return child;
            if (auto* const found = find(name, role, child))
                return found;
        }
        return nullptr;
    }
    /// A button, also one that opens a menu. Qt 6.4 calls both buttons, later ones know more.
    QQuickItem* button(const QString& name)
    {
        auto* const found = find(name, QAccessible::Button);
        return found ? found : find(name, QAccessible::ComboBox);
    }
    QQuickItem* slider(const QString& name) { return find(name, QAccessible::Slider); }
    bool isSeen(const QString& text) { return find(text, QAccessible::StaticText) != nullptr; }

    QPoint at(QQuickItem* item, double x, double y) { return item->mapToScene({x, y}).toPoint(); }
    void click(QQuickItem* item)
    {
        ASSERT_TRUE(item);
        QTest::mouseClick(window.get(), Qt::LeftButton, {}, at(item, item->width() / 2, item->height() / 2));
    }
    void doubleClick(QQuickItem* item)
    {
        ASSERT_TRUE(item);
        const auto place = at(item, item->width() / 2, item->height() / 2);
        QTest::mouseDClick(window.get(), Qt::LeftButton, {}, place);
    }
    void press(QQuickItem* item)
    {
        ASSERT_TRUE(item);
        auto* const actions = QAccessible::queryAccessibleInterface(item)->actionInterface();
        ASSERT_TRUE(actions);
        actions->doAction(QAccessibleActionInterface::pressAction());
    }
    AppAudioSettings music() { return appSettings(*demo->controller.state().settings, "com.apple.Music"); }

    const QString musicID = QStringLiteral("com.apple.Music");
    std::unique_ptr<DemoPanel> demo;
    std::unique_ptr<PanelEngine> engine;
    std::unique_ptr<QQuickWindow> window;
    std::unique_ptr<QQuickItem> view;
};

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
    values->setCurrentValue(0.97);

    EXPECT_EQ(music().volume, 1);
    EXPECT_EQ(fader->property("value").toDouble(), 1);
}

TEST_F(PanelViewTest, aVolumeSetByAnAssistiveProgramDoesNotCutTheFaderOff)
{
    show(demoContents(Theme::dark));
    auto* const fader = slider("Music volume");
    ASSERT_TRUE(fader);
    auto* const values = QAccessible::queryAccessibleInterface(fader)->valueInterface();
    EXPECT_EQ(values->maximumValue().toDouble(), 1);

    values->setCurrentValue(0.25);
    EXPECT_EQ(music().volume, 0.25F);
    editAppSettings(demo->controller, "com.apple.Music", [](auto& app) { app.volume = 0.75F; });

    EXPECT_EQ(fader->property("value").toDouble(), 0.75);
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

TEST_F(PanelViewTest, aBandFollowsTheHandInWholeDecibels)
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
    // Upwards from the first entry come the last ones: first "Reset to Flat".
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

    EXPECT_THAT(demo->host.asked, testing::ElementsAre("quit"));
}

}  // namespace
}  // namespace fadeloom
