// SPDX-License-Identifier: MIT
// The popover below the menu bar item.
#include "platform/macos/AppKitPopover.h"
#include "platform/macos/MenuBarItem.h"
#include "tests/macos/DesktopStage.h"

#include <optional>
#include <utility>

namespace fadeloom {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MacOSPopover : public DesktopStage {
protected:
    MacOSPopover()
    {
        item.show("Fadeloom");
        popover.emplace(item);
        popover->whenShown([this] { happened.emplace_back("will show"); });
        popover->whenClosed([this] { happened.emplace_back("did close"); });
        done();
    }
    NSView* content() { return (__bridge NSView*)popover->contentView(); }
    /// Presses and releases the mouse button on the item, like a user, and then runs its action.
    void pressItem()
    {
        desktop.mouse = {1010, 910};
        [doubles::lastPopover() pressElsewhere];
    }

    MenuBarItem item;
    std::optional<AppKitPopover> popover;
    std::vector<std::string> happened;
};

TEST_F(MacOSPopover, opensBelowTheItemWithTheFocus)
{
    content().subviews = @[ [[NSView alloc] initWithFrame:NSZeroRect] ];
    popover->setAnimated(false);
    EXPECT_FALSE(popover->isShown());

    popover->show();

    EXPECT_TRUE(popover->isShown());
    EXPECT_THAT(done(), ElementsAre("popover opens", "make key", "keys to the content"));
    EXPECT_THAT(happened, ElementsAre("will show"));
    EXPECT_EQ(doubles::lastPopover().edge, NSRectEdgeMinY);
    EXPECT_EQ(doubles::lastPopover().anchor, (__bridge NSView*)item.button());
}

TEST_F(MacOSPopover, isAnimatedIfEnabled)
{
    popover->setAnimated(true);

    popover->show();

    EXPECT_THAT(done(), ElementsAre("popover opens slowly", "make key", "keys to nobody"));
}

TEST_F(MacOSPopover, takesTheFocusAgainWhenItHasAppearedAndWhenTheProgramIsActive)
{
    popover->show();
    done();

    doubles::runQueues();
    EXPECT_THAT(done(), ElementsAre("make key", "keys to nobody"));
    doubles::post("default", NSApplicationDidBecomeActiveNotification);
    EXPECT_THAT(done(), ElementsAre("make key", "keys to nobody"));

    popover->close();
    done();
    doubles::post("default", NSApplicationDidBecomeActiveNotification);
    EXPECT_THAT(done(), IsEmpty());
}

TEST_F(MacOSPopover, createsItsContentWhenFirstOpened)
{
    popover->whenFirstShown([this] { happened.emplace_back("make content"); });
    EXPECT_THAT(happened, IsEmpty());

    for (int i = 0; i < 2; ++i) {
        popover->show();
        popover->close();
    }

    EXPECT_THAT(happened, ElementsAre("make content", "will show", "did close", "will show", "did close"));
}

TEST_F(MacOSPopover, closesOnAPressElsewhere)
{
    popover->show();

    [doubles::lastPopover() pressElsewhere];

    EXPECT_FALSE(popover->isShown());
    EXPECT_THAT(happened, ElementsAre("will show", "did close"));
}

TEST_F(MacOSPopover, isNotOpenedAgainByTheClickWhosePressHasClosedIt)
{
    popover->show();
    pressItem();
    desktop.uptime += 0.4;

    EXPECT_TRUE(popover->isShown()) << "so that the click closes it";
    popover->close();

    EXPECT_FALSE(popover->isShown()) << "and the next one opens it";
    EXPECT_THAT(happened, ElementsAre("will show", "did close"));
}

TEST_F(MacOSPopover, isOpenedByAClickLongAfterThePressThatHasClosedIt)
{
    popover->show();
    pressItem();

    desktop.uptime += 1.5;

    EXPECT_FALSE(popover->isShown());
}

TEST_F(MacOSPopover, reportsWhenItHasClosed)
{
    popover->show();

    popover->close();
    popover->close();

    EXPECT_FALSE(popover->isShown());
    EXPECT_THAT(happened, ElementsAre("will show", "did close"));
}

TEST_F(MacOSPopover, providesAViewWhoseContentStaysAtItsUpperEdge)
{
    NSView* const handedOut = content();
    ASSERT_TRUE(handedOut != nil);

    popover->show();

    EXPECT_EQ(doubles::lastPopover().contentViewController.view, handedOut);
    EXPECT_EQ(content(), handedOut);
    EXPECT_TRUE(handedOut.isFlipped);
}

TEST_F(MacOSPopover, resizesImmediatelyEvenWhileAnimating)
{
    popover->setAnimated(true);
    popover->show();
    done();

    popover->setContentSize(380, 520);

    EXPECT_THAT(done(), ElementsAre("popover grows"));
    EXPECT_EQ(doubles::lastPopover().contentSize.width, 380);
    EXPECT_EQ(doubles::lastPopover().contentSize.height, 520);
    EXPECT_TRUE(doubles::lastPopover().animates);
}

TEST_F(MacOSPopover, isDestroyedWithoutCallingItsOwner)
{
    popover->show();
    done();
    happened.clear();

    popover.reset();

    EXPECT_THAT(happened, IsEmpty());
    EXPECT_THAT(done(), ElementsAre("popover closes"));
    EXPECT_TRUE(desktop.observers.empty());
}

}  // namespace
}  // namespace fadeloom
