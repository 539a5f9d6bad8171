// SPDX-License-Identifier: MIT
// The effects of granting and revoking the permission.
#include "tests/control/ControllerStory.h"

#include <thread>

namespace fadeloom {
namespace {

using State = AudioPermission::State;

class PermissionStory : public ControllerStory {
protected:
    State stateFor(std::optional<int> preflight)
    {
        world.setPermission(preflight);
        return AudioPermission(world.capturePermission(), world.mainLoop()).current();
    }
};

TEST_F(PermissionStory, thePreflightsAnswersHaveTheirStates)
{
    EXPECT_EQ(stateFor(0), State::granted);
    EXPECT_EQ(stateFor(1), State::denied);
    EXPECT_EQ(stateFor(2), State::notDetermined);
    EXPECT_EQ(stateFor(7), State::notDetermined);
}

TEST_F(PermissionStory, aSystemWithoutTheQuestionAllows)
{
    EXPECT_EQ(stateFor(std::nullopt), State::granted);
}

TEST_F(PermissionStory, withoutItAppsAreListedAndNotTapped)
{
    world.setPermission(SimulatedCapturePermission::denied);
    start();

    launchPlaying("Player");

    EXPECT_EQ(mixer(), "com.example.player▶");
    EXPECT_EQ(tapAttempts(), 0);
}

TEST_F(PermissionStory, revokingItRemovesEveryTapWithinAPollAndKeepsTheRows)
{
    launchPlaying("Player");
    launchPlaying("Chat");
    start();

    world.setPermission(SimulatedCapturePermission::denied);
    world.advance(5s);

    EXPECT_EQ(*state().permission, State::denied);
    EXPECT_TRUE(hasLogged("permission: denied"));
    EXPECT_EQ(callCount(AudioOperation::destroyTap), 2);
    EXPECT_EQ(mixer(), "com.example.chat▶, com.example.player▶");
    EXPECT_NE(controller->parametersOf("com.example.player"), nullptr);
}

TEST_F(PermissionStory, revokingItEndsARecordingWhileItsTapStillExists)
{
    start();
    launchPlaying("Player");
    controller->startRecording("com.example.player");
    bool wasTapped = false;
    const auto subscription = state().recordings.whenAssigned(
        [&] { wasTapped = state().recordings->empty() && tapOf("com.example.player") != nullptr; });

    world.setPermission(SimulatedCapturePermission::denied);
    world.advance(5s);

    EXPECT_TRUE(wasTapped);
    EXPECT_EQ(tapOf("com.example.player"), nullptr);
}

TEST_F(PermissionStory, grantingItTapsTheListedApps)
{
    world.setPermission(SimulatedCapturePermission::undecided);
    launchPlaying("Player");
    start();

    world.setPermission(SimulatedCapturePermission::granted);
    world.advance(5s);

    EXPECT_TRUE(hasLogged("permission: granted"));
    EXPECT_EQ(outputOf("com.example.player"), "speakers");
}

TEST_F(PermissionStory, theUsersAnswerIsHandledOnTheMainThread)
{
    world.setPermission(SimulatedCapturePermission::undecided);
    launchPlaying("Player");
    start();

    controller->requestPermission();
    ASSERT_EQ(world.capturePermission().promptCount(), 1);
    std::jthread([&] { world.capturePermission().answer(true); }).join();
    EXPECT_EQ(*state().permission, State::notDetermined);
    world.runPosted();

    EXPECT_EQ(*state().permission, State::granted);
    EXPECT_EQ(outputOf("com.example.player"), "speakers");
}

TEST_F(PermissionStory, aRefusalIsPublishedToo)
{
    world.setPermission(SimulatedCapturePermission::undecided);
    start();

    controller->requestPermission();
    world.capturePermission().answer(false);
    world.runPosted();

    EXPECT_EQ(*state().permission, State::denied);
}

TEST_F(PermissionStory, requestingWithoutAPromptPollsImmediately)
{
    world.setPermission(SimulatedCapturePermission::denied);
    world.capturePermission().setCanRequest(false);
    start();
    world.setPermission(SimulatedCapturePermission::granted);

    controller->requestPermission();

    EXPECT_EQ(*state().permission, State::granted);
    EXPECT_EQ(world.capturePermission().promptCount(), 0);
}

TEST_F(PermissionStory, observersAreNotifiedOnlyOfChanges)
{
    start();
    std::vector<State> seen;
    const auto watch = state().permission.whenAssigned([&] { seen.push_back(*state().permission); });

    world.advance(20s);
    world.setPermission(SimulatedCapturePermission::denied);
    world.advance(20s);

    EXPECT_EQ(seen, std::vector{State::denied});
}

}  // namespace
}  // namespace fadeloom
