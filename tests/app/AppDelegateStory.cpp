// SPDX-License-Identifier: MIT
// Clicks on the status icon, and its menu.
#include "app/AppDelegate.h"

#include "control/AudioController.h"
#include "log/EngineLog.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "platform/simulated/SimulatedPopover.h"
#include "platform/simulated/SimulatedStatusItem.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

class AppDelegateStory : public testing::Test {
protected:
    AppDelegateStory() { world.plug({.uid = "speakers", .name = "Desk Speakers"}); }

    std::vector<std::string> titles()
    {
        std::vector<std::string> result;
        for (const auto& entry : icon.openMenu())
            result.push_back(entry.title);
        return result;
    }
    bool isMeasuring() { return controller.levels().isRunning(); }
    void setAnimations(bool isOn)
    {
        auto settings = *controller.state().settings;
        settings.appearance.animations = isOn;
        controller.setSettings(settings);
    }
    std::optional<StatusMenuEntry> entry(const std::string& title)
    {
        for (auto& each : icon.openMenu()) {
            if (each.title == title)
                return each;
        }
        return std::nullopt;
    }

    TemporaryFolder folder;
    SimulatedPlatform world{folder.path()};
    EngineLog engineLog{world.systemLog(), world.platform().logQueue, folder.path() / "Fadeloom"};
    AudioController controller{world.platform(), engineLog, "1.2.3"};
    SimulatedStatusItem icon;
    SimulatedPopover popover;
    std::string page = "mixer";
    std::vector<std::string> done;
    AppDelegate delegate{controller, icon, popover, world.application(),
        {
            .showPage =
                [this](auto shown) { page = shown == AppDelegate::Page::settings ? "settings" : "mixer"; },
            .checkForUpdates = [this] { done.emplace_back("updates"); },
            .showAbout = [this] { done.emplace_back("about"); },
            .quit = [this] { done.emplace_back("quit"); },
        }};
};

TEST_F(AppDelegateStory, theIconHasTheProgramsName)
{
    EXPECT_EQ(icon.name(), "Fadeloom");
}

TEST_F(AppDelegateStory, aClickOpensThePopoverInFront)
{
    icon.click();

    EXPECT_TRUE(popover.isShown());
    EXPECT_EQ(world.application().activationCount(), 1);
}

TEST_F(AppDelegateStory, aSecondClickClosesIt)
{
    icon.click();
    icon.click();

    EXPECT_FALSE(popover.isShown());
}

TEST_F(AppDelegateStory, levelsAreMeasuredWhileItIsOpen)
{
    EXPECT_FALSE(isMeasuring());
    icon.click();
    EXPECT_TRUE(isMeasuring());

    popover.close();

    EXPECT_FALSE(isMeasuring());
}

TEST_F(AppDelegateStory, itIsAnimatedAsTheUserWishes)
{
    setAnimations(false);
    icon.click();
    EXPECT_FALSE(popover.isAnimated());
    icon.click();

    setAnimations(true);
    icon.click();
    EXPECT_TRUE(popover.isAnimated());
}

TEST_F(AppDelegateStory, theMenuHasItsEntriesInOrder)
{
    EXPECT_THAT(titles(),
        ElementsAre("About Fadeloom", "", "Open Mixer", "Settings…", "Launch at Login", "Check for Updates…",
            "", "Quit Fadeloom"));
    EXPECT_EQ(entry("Settings…")->key, ",");
    EXPECT_EQ(entry("Quit Fadeloom")->key, "q");
}

TEST_F(AppDelegateStory, theMenuMarksTheEntryEquivalentToAClick)
{
    for (const auto& each : icon.openMenu())
        EXPECT_EQ(each.isClick, each.title == "Open Mixer") << each.title;
}

TEST_F(AppDelegateStory, theMenuClosesThePopover)
{
    icon.click();

    static_cast<void>(icon.openMenu());

    EXPECT_FALSE(popover.isShown());
}

TEST_F(AppDelegateStory, theMenuOpensThePagesOfThePopover)
{
    EXPECT_TRUE(icon.choose("Settings…"));
    EXPECT_EQ(page, "settings");
    EXPECT_TRUE(popover.isShown());

    EXPECT_TRUE(icon.choose("Open Mixer"));
    EXPECT_EQ(page, "mixer");
    EXPECT_TRUE(popover.isShown());
}

TEST_F(AppDelegateStory, theMenuShowsTheCurrentLoginState)
{
    EXPECT_FALSE(entry("Launch at Login")->isChecked);

    EXPECT_TRUE(icon.choose("Launch at Login"));
    EXPECT_TRUE(entry("Launch at Login")->isChecked);
    EXPECT_EQ(world.loginItem().status(), LoginItem::Status::enabled);

    EXPECT_TRUE(icon.choose("Launch at Login"));
    EXPECT_FALSE(entry("Launch at Login")->isChecked);
}

TEST_F(AppDelegateStory, theOtherEntriesWork)
{
    icon.choose("About Fadeloom");
    icon.choose("Check for Updates…");
    icon.choose("Quit Fadeloom");

    EXPECT_THAT(done, ElementsAre("about", "updates", "quit"));
    EXPECT_FALSE(popover.isShown());
}

TEST_F(AppDelegateStory, anEntryClosesThePopoverEvenIfTheMenuIsStale)
{
    const auto about = entry("About Fadeloom");
    const auto updates = entry("Check for Updates…");
    icon.click();

    about->action();
    EXPECT_FALSE(popover.isShown());
    icon.click();
    updates->action();

    EXPECT_FALSE(popover.isShown());
    EXPECT_THAT(done, ElementsAre("about", "updates"));
}

TEST_F(AppDelegateStory, withoutAnUpdateCheckTheMenuDoesNotOfferOne)
{
    SimulatedStatusItem silentIcon;
    const AppDelegate silent{controller, silentIcon, popover, world.application(),
        {.showPage = [](auto) { }, .showAbout = [] { }, .quit = [] { }}};

    for (const auto& each : silentIcon.openMenu())
        EXPECT_NE(each.title, "Check for Updates…");
}

TEST_F(AppDelegateStory, itsTextsAreTranslated)
{
    SimulatedStatusItem foreignIcon;
    const AppDelegate foreign{controller, foreignIcon, popover, world.application(),
        {.showPage = [](auto) {},
            .showAbout = [] {},
            .quit = [] {},
            .translate = [](const char* context, const char* text) { return std::string(context) + text; }}};

    EXPECT_EQ(foreignIcon.openMenu().front().title, "AppDelegateAbout Fadeloom");
}

}  // namespace
}  // namespace fadeloom
