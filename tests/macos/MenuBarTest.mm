// SPDX-License-Identifier: MIT
// The menu bar item and its menu.
#include "platform/macos/MenuBarItem.h"
#include "tests/macos/DesktopStage.h"

#include <optional>
#include <utility>

namespace fadeloom {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MacOSMenuBar : public DesktopStage {
protected:
    MacOSMenuBar()
    {
        item->whenClicked([this] { happened.emplace_back("clicked"); });
        item->whenMenuOpens([this] { happened.emplace_back("menu will open"); });
        item->setMenu([this] {
            return StatusMenu{
                {.title = "Open Mixer", .action = [this] { happened.emplace_back("mixer"); }},
                {},
                {.title = "Settings…", .action = [this] { happened.emplace_back("settings"); }, .key = ","},
                {.title = "Launch at Login", .action = [] {}, .isChecked = true},
            };
        });
        item->show("Fadeloom");
    }
    NSStatusBarButton* button() { return NSStatusBar.systemStatusBar.onlyItem.button; }

    std::optional<MenuBarItem> item{std::in_place};
    std::vector<std::string> happened;
};

TEST_F(MacOSMenuBar, showsATintedPictureUnderItsName)
{
    EXPECT_THAT(done(), ElementsAre("square item"));
    EXPECT_STREQ(button().image.drawnName.UTF8String, "MenuBarIcon");
    EXPECT_TRUE(button().image.isTemplate);
    EXPECT_STREQ(button().toolTip.UTF8String, "Fadeloom");
    EXPECT_STREQ(button().accessibilityLabel.UTF8String, "Fadeloom");
}

TEST_F(MacOSMenuBar, reportsALeftClick)
{
    [button() click:NSEventTypeLeftMouseUp modifiers:0];

    EXPECT_THAT(happened, ElementsAre("clicked"));
}

TEST_F(MacOSMenuBar, opensItsMenuOnARightClickAndWithControl)
{
    done();
    [button() click:NSEventTypeRightMouseUp modifiers:0];
    [button() click:NSEventTypeLeftMouseUp modifiers:NSEventModifierFlagControl];

    EXPECT_THAT(std::exchange(happened, {}), ElementsAre("menu will open", "menu will open"));
    EXPECT_THAT(done(), ElementsAre("menu opens", "menu opens"));
    // Otherwise the next left click would open it.
    EXPECT_EQ(NSStatusBar.systemStatusBar.onlyItem.menu, nil);
    [button() click:NSEventTypeLeftMouseUp modifiers:0];
    EXPECT_THAT(happened, ElementsAre("clicked"));
}

TEST_F(MacOSMenuBar, opensItsMenuByControlOrOptionWhereClicksAreGestures)
{
    [button() clickByGesture:NSEventModifierFlagControl];
    [button() clickByGesture:NSEventModifierFlagOption];
    EXPECT_THAT(std::exchange(happened, {}), ElementsAre("menu will open", "menu will open"));

    [button() clickByGesture:0];
    // VoiceOver holds these while it presses.
    [button() clickByGesture:NSEventModifierFlagControl | NSEventModifierFlagOption];
    EXPECT_THAT(std::exchange(happened, {}), ElementsAre("clicked", "clicked"));

    [button() performClick:nil];  // Without any event.
    EXPECT_THAT(happened, ElementsAre("clicked"));
}

TEST_F(MacOSMenuBar, offersItsMenuToScreenReaders)
{
    ASSERT_THAT(button().accessibilityCustomActions.count, 1U);
    NSAccessibilityCustomAction* action = button().accessibilityCustomActions.firstObject;

    EXPECT_TRUE(action.handler());
    EXPECT_THAT(happened, IsEmpty()) << "whoever asks waits for the answer";
    doubles::runQueues();

    EXPECT_STREQ(action.name.UTF8String, "Menü einblenden");
    EXPECT_THAT(happened, ElementsAre("menu will open"));
}

TEST_F(MacOSMenuBar, opensNoMenuAfterItsEnd)
{
    NSAccessibilityCustomAction* action = button().accessibilityCustomActions.firstObject;
    action.handler();

    item.reset();
    doubles::runQueues();

    EXPECT_THAT(happened, IsEmpty());
    action = nil;
}

TEST_F(MacOSMenuBar, hasTheCurrentEntriesInItsMenu)
{
    std::vector<std::string> titles;
    desktop.whenMenuOpens = [&](NSMenu* menu) {
        titles = doubles::titles(menu);
        EXPECT_TRUE(menu.itemArray[1].separatorItem);
        EXPECT_STREQ(menu.itemArray[2].keyEquivalent.UTF8String, ",");
        EXPECT_EQ(menu.itemArray[2].state, NSControlStateValueOff);
        EXPECT_EQ(menu.itemArray[3].state, NSControlStateValueOn);
        doubles::choose(menu.itemArray[2]);
    };

    [button() click:NSEventTypeRightMouseUp modifiers:0];

    EXPECT_THAT(titles, ElementsAre("Open Mixer", "", "Settings…", "Launch at Login"));
    EXPECT_THAT(happened, ElementsAre("menu will open", "settings"));
}

TEST_F(MacOSMenuBar, appliesAChoiceAfterTheMenuHasClosed)
{
    NSMenuItem* chosen = nil;
    desktop.whenMenuOpens = [&](NSMenu* menu) { chosen = menu.itemArray[0]; };

    [button() click:NSEventTypeRightMouseUp modifiers:0];
    doubles::choose(chosen);

    EXPECT_THAT(happened, ElementsAre("menu will open", "mixer"));
    chosen = nil;
}

TEST_F(MacOSMenuBar, removesItsItemAtItsEnd)
{
    done();
    item.reset();

    EXPECT_THAT(done(), ElementsAre("item removed"));
}

}  // namespace
}  // namespace fadeloom
