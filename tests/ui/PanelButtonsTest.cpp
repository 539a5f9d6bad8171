// SPDX-License-Identifier: MIT
// Rarely used buttons and links, and their effects.
#include "tests/ui/PanelStage.h"

#include <algorithm>
#include <vector>

namespace fadeloom {
namespace {

class PanelButtonsTest : public PanelStage {
protected:
    const SettingsData& settings() { return *demo->controller.state().settings; }
    void showSettings()
    {
        show(demoContents(Theme::dark, DemoHome::ofLinux));
        click(button("Settings"));
    }
};

TEST_F(PanelButtonsTest, dismissRemovesTheMessage)
{
    show(demoContents(Theme::dark));
    const auto message = QStringLiteral("“Rock” is a built-in preset name. Choose another name.");
    demo->controller.saveUserPreset("Rock", "com.apple.Music");
    QTest::qWait(20);
    ASSERT_TRUE(find(message, QAccessible::AlertMessage));

    click(button("Dismiss"));

    EXPECT_FALSE(*demo->controller.state().error);
    QTest::qWait(20);
    EXPECT_FALSE(find(message, QAccessible::AlertMessage));
}

TEST_F(PanelButtonsTest, removeRemovesACallApp)
{
    showSettings();

    press(button("Remove Slack"));

    EXPECT_EQ(settings().focus.callApps,
        (std::vector<std::string>{"us.zoom.Zoom", "com.discordapp.Discord", "org.signal.Signal"}));
    QTest::qWait(20);
    EXPECT_FALSE(button("Remove Slack"));
    EXPECT_TRUE(button("Remove Zoom"));
}

TEST_F(PanelButtonsTest, resetListRestoresThePlatformsCallApps)
{
    showSettings();

    press(link("Reset List"));

    EXPECT_EQ(settings().focus.callApps, (std::vector<std::string>{"com.example.meet", "com.example.talk"}));
}

TEST_F(PanelButtonsTest, resetAllLeavesNoAppChanged)
{
    showSettings();
    ASSERT_FALSE(settings().apps.empty());

    press(link("Reset All App Volumes and EQ"));

    EXPECT_TRUE(settings().apps.empty());
}

TEST_F(PanelButtonsTest, theVolumeLimitIsExplained)
{
    const auto never = QStringLiteral("Apps can never play louder than their original level.");
    const auto boost = QStringLiteral("Boost makes apps louder than their original level.");
    const auto isExplained = [&](const QString& beginning) {
        const auto texts = view->findChildren<QQuickItem*>();
        return std::ranges::any_of(texts, [&](QQuickItem* item) {
            return item->isVisible() && item->property("text").toString().startsWith(beginning);
        });
    };
    showSettings();
    QTest::qWait(20);
    EXPECT_TRUE(isExplained(never));
    EXPECT_FALSE(isExplained(boost));

    demo->controller.editSettings([](auto& changed) { changed.volumeLimit = 1.5F; });
    QTest::qWait(20);

    EXPECT_FALSE(isExplained(never));
    EXPECT_TRUE(isExplained(boost));
}

}  // namespace
}  // namespace fadeloom
