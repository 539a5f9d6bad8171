// SPDX-License-Identifier: MIT
// The line of a row that suggests its app as a call app.
#include "tests/ui/PanelStage.h"

#include <vector>

namespace fadeloom {
namespace {

class CallOfferViewTest : public PanelStage { };

TEST_F(CallOfferViewTest, anOfferedCallAppIsAcceptedWithOneClick)
{
    auto contents = demoContents(Theme::dark);
    contents.callOffers = {contents.apps[1].bundleID};
    show(contents);
    const auto height = view->implicitHeight();

    click(link("Lower others during calls in Safari"));

    EXPECT_EQ(demo->controller.state().settings->focus.callApps.back(), contents.apps[1].bundleID);
    EXPECT_FALSE(link("Lower others during calls in Safari"));
    QTest::qWait(20);
    EXPECT_LT(view->implicitHeight(), height) << "its line goes";
}

TEST_F(CallOfferViewTest, anOfferedCallAppIsDeclinedForGood)
{
    auto contents = demoContents(Theme::dark);
    contents.callOffers = {contents.apps[1].bundleID};
    show(contents);

    click(button("Don’t offer this for Safari again"));

    const auto& focus = demo->controller.state().settings->focus;
    EXPECT_EQ(focus.callApps, contents.settings.focus.callApps);
    EXPECT_EQ(focus.declinedCallApps, std::vector{contents.apps[1].bundleID});
    EXPECT_FALSE(link("Lower others during calls in Safari"));
}

}  // namespace
}  // namespace fadeloom
