// SPDX-License-Identifier: MIT
// Applications, permission and the smaller parts of the simulation.
#include "platform/simulated/SimulatedPlatform.h"
#include "tests/platform/AudioReading.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SimulatedSessionTest : public ::testing::Test {
protected:
    SimulatedPlatform world{"/some/folder"};
    Workspace& workspace = world.workspace();
};

TEST_F(SimulatedSessionTest, aLaunchedAppHasPropertiesDerivedFromItsName)
{
    const ProcessID pid = world.launchApp("Music Box");

    const auto app = workspace.runningApplication(pid);

    ASSERT_TRUE(app.has_value());
    EXPECT_EQ(app->bundleID, "com.example.musicbox");
    EXPECT_EQ(app->localizedName, "Music Box");
    EXPECT_TRUE(workspace.isApplicationBundle(*app->bundleLocation));
    EXPECT_THAT(workspace.runningApplications(), ElementsAre(*app));
}

TEST_F(SimulatedSessionTest, aHelperIsNotAnAppAndItsOwnerIsResponsibleForIt)
{
    const ProcessID browser = world.launchApp("Browser");
    const ProcessID helper = world.launchHelper(browser, "com.example.browser.helper");

    world.openAudio(helper);

    EXPECT_FALSE(workspace.runningApplication(helper).has_value());
    EXPECT_EQ(workspace.responsiblePid(helper), browser);
    EXPECT_EQ(AudioReading{world.audio()}.process(helper).bundleID, "com.example.browser.helper");
}

TEST_F(SimulatedSessionTest, quittingAnAppEndsItsHelpersAndTheirAudio)
{
    const ProcessID browser = world.launchApp("Browser");
    const ProcessID helper = world.launchHelper(browser, "com.example.browser.helper");
    world.startPlaying(helper);
    world.openAudio(browser);
    const auto app = workspace.runningApplication(browser).value();

    world.quitApp(browser);

    EXPECT_TRUE(workspace.isTerminated(app));
    EXPECT_EQ(workspace.responsiblePid(helper), std::nullopt);
    EXPECT_THAT(world.audioWorld().state().processes, IsEmpty());
}

TEST_F(SimulatedSessionTest, launchingAgainUnderTheSamePidDoesNotReviveTheFirst)
{
    const ProcessID pid = world.launchApp("Music");
    const auto music = workspace.runningApplication(pid).value();

    world.quitApp(pid);
    world.launchApp("Music", {.pid = pid});

    EXPECT_TRUE(workspace.isTerminated(music));
    EXPECT_FALSE(workspace.isTerminated(workspace.runningApplication(pid).value()));
}

TEST_F(SimulatedSessionTest, theMicrophoneIsAPropertyOfTheProcess)
{
    const ProcessID call = world.launchApp("Call");
    const AudioReading reading{world.audio()};

    world.startUsingMic(call);
    const auto isUsing = [&] { return reading.process(call).isUsingMic; };

    EXPECT_TRUE(isUsing());
    world.stopUsingMic(call);
    EXPECT_FALSE(isUsing());
}

TEST_F(SimulatedSessionTest, permissionIsInitiallyGrantedAndFollowsTheAnswer)
{
    CapturePermission& permission = world.capturePermission();
    std::vector<bool> answers;
    EXPECT_EQ(permission.preflight(), 0);

    world.setPermission(SimulatedCapturePermission::undecided);
    permission.request([&](bool isGranted) { answers.push_back(isGranted); });
    EXPECT_THAT(answers, IsEmpty());
    std::thread{[&] { world.capturePermission().answer(false); }}.join();

    EXPECT_THAT(answers, ElementsAre(false));
    EXPECT_EQ(permission.preflight(), 1);
}

TEST_F(SimulatedSessionTest, theDateMovesWithTheClock)
{
    const auto before = world.date();

    world.advance(90s);

    EXPECT_EQ(world.date() - before, 90s);
}

TEST_F(SimulatedSessionTest, theProgramGetsEveryPart)
{
    const Platform platform = world.platform();

    platform.systemLog.write(SystemLog::Level::error, "tap failed");

    EXPECT_THAT(world.systemLog().lines(),
        ElementsAre(SimulatedSystemLog::Line{SystemLog::Level::error, "tap failed"}));
    EXPECT_EQ(platform.folders.applicationSupport(), "/some/folder");
    EXPECT_EQ(platform.text.lowercased("Music"), "music");
    EXPECT_EQ(&platform.mainLoop, &world.mainLoop());
}

}  // namespace
}  // namespace fadeloom
