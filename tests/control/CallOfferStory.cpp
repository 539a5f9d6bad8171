// SPDX-License-Identifier: MIT
// An unlisted app that may be on a call: it is suggested, and the user decides.
#include "tests/control/ControllerStory.h"

namespace fadeloom {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CallOfferStory : public ControllerStory {
protected:
    CallOfferStory()
    {
        start();
        launchPlaying("Player");
        browserPid = launchPlaying("Browser");
    }

    void listen()
    {
        world.startUsingMic(browserPid);
        world.runPosted();
    }
    void stopListening()
    {
        world.stopUsingMic(browserPid);
        world.runPosted();
    }

    const std::string player = "com.example.player";
    const std::string browser = "com.example.browser";
    ProcessID browserPid = -1;
};

TEST_F(CallOfferStory, appearsWithTheMicrophoneAndDucksNothing)
{
    EXPECT_THAT(*state().callOffers, IsEmpty());

    listen();

    EXPECT_THAT(*state().callOffers, ElementsAre(browser));
    EXPECT_EQ(*state().callApp, std::nullopt);
    EXPECT_EQ(valuesOf(player).duck, 1);
}

TEST_F(CallOfferStory, isAcceptedWithOneCommand)
{
    listen();

    controller->addCallApp(browser);

    EXPECT_EQ(*state().callApp, browser);
    EXPECT_EQ(valuesOf(player).duck, 0.2F);
    EXPECT_THAT(*state().callOffers, IsEmpty());
    stopListening();
    EXPECT_THAT(*state().callOffers, IsEmpty());
}

TEST_F(CallOfferStory, isNeverMadeAgainOnceDeclined)
{
    listen();

    controller->removeCallApp(browser);

    EXPECT_THAT(*state().callOffers, IsEmpty());
    stopListening();
    listen();
    EXPECT_THAT(*state().callOffers, IsEmpty());
    world.advance(1s);
    end();
    start();
    EXPECT_THAT(*state().callOffers, IsEmpty()) << "not in a later run either";
    EXPECT_THAT(saved().focus.declinedCallApps, ElementsAre(browser));
}

TEST_F(CallOfferStory, outlivesTheCallAndEndsWithTheApp)
{
    listen();
    stopListening();
    EXPECT_THAT(*state().callOffers, ElementsAre(browser));

    world.quitApp(browserPid);
    world.runPosted();

    EXPECT_THAT(*state().callOffers, IsEmpty());
}

TEST_F(CallOfferStory, isNotMadeForAnAppRemovedFromTheList)
{
    controller->addCallApp(browser);
    controller->removeCallApp(browser);

    listen();

    EXPECT_THAT(*state().callOffers, IsEmpty());
    controller->resetCallApps();
    EXPECT_THAT(*state().callOffers, ElementsAre(browser)) << "as if nothing had been said";
}

TEST_F(CallOfferStory, isNotMadeForAKnownAppUnderAnotherIdentifier)
{
    const auto pid = world.launchApp("Meet", {.bundleID = "com.example.meet.sandboxed"});
    world.startPlaying(pid, SimulatedSignal::constant(source));
    world.startUsingMic(pid);
    world.runPosted();

    EXPECT_EQ(*state().callApp, "com.example.meet.sandboxed");
    EXPECT_THAT(*state().callOffers, IsEmpty());
    EXPECT_EQ(valuesOf("com.example.meet.sandboxed").duck, 1);

    controller->removeCallApp("com.example.meet.sandboxed");

    EXPECT_EQ(*state().callApp, std::nullopt);
    EXPECT_THAT(settings().focus.callApps, ElementsAre("com.example.talk"));
}

TEST_F(CallOfferStory, anAppThatDoesNotRunIsOneUnderEachOfItsIdentifiers)
{
    controller->removeCallApp("com.example.meet.sandboxed");
    EXPECT_THAT(settings().focus.callApps, ElementsAre("com.example.talk"));

    controller->addCallApp("com.example.meet.sandboxed");
    EXPECT_THAT(settings().focus.callApps, ElementsAre("com.example.talk", "com.example.meet.sandboxed"));

    controller->resetCallApps();
    EXPECT_THAT(settings().focus.callApps, ElementsAre("com.example.meet", "com.example.talk"));
}

}  // namespace
}  // namespace fadeloom
