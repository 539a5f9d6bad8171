// SPDX-License-Identifier: MIT
// The complete controller on the adapters of macOS, from an app that starts playing to shutdown.
#include "control/AudioController.h"
#include "log/EngineLog.h"
#include "platform/HttpClient.h"
#include "platform/macos/AppKitWorkspace.h"
#include "platform/macos/CoreAudioSystem.h"
#include "platform/macos/DispatchQueue.h"
#include "platform/macos/ExtendedAudioFiles.h"
#include "platform/macos/FoundationClock.h"
#include "platform/macos/FoundationFolders.h"
#include "platform/macos/MacOSCallApps.h"
#include "platform/macos/MainAppLoginItem.h"
#include "platform/macos/StandardUserDefaults.h"
#include "platform/macos/TccPermission.h"
#include "platform/macos/UnifiedLog.h"
#include "platform/simulated/SimulatedText.h"
#include "tests/macos/DesktopStage.h"
#include "tests/macos/QueueMainLoop.h"
#include "tests/macos/TccDouble.h"
#include "tests/macos/doubles/AudioFileDouble.h"
#include "tests/macos/doubles/AudioWorld.h"
#include "tests/macos/doubles/Services.h"
#include "tests/support/TemporaryFolder.h"

#include <fstream>
#include <iterator>
#include <optional>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class UnaskedWeb final : public HttpClient {
    void get(const HttpRequest& /*request*/, Answered /*answered*/) override
    {
        ADD_FAILURE() << "the controller asks no web server";
    }
};

class MacOSController : public DesktopStage {
protected:
    MacOSController()
    {
        desktop.folders = folder.path();
        tcc.preflightAnswer = 0;
        world.reset();
        world.plug({.uid = "speakers", .name = "Speakers"});
        doubles::launch("Music", 501, "/Applications/Music.app");
        // A helper that is not an application plays for it.
        doubles::responsiblePids() = {{601, 501}};
        world.addProcess({.pid = 601, .isRunningOutput = true, .amplitude = 0.5F});
        controller.emplace(platform, engineLog, "1.2.3");
    }
    ~MacOSController() override
    {
        controller.reset();
        EXPECT_THAT(world.listeners, IsEmpty());
        EXPECT_THAT(world.aggregates, IsEmpty());
        EXPECT_THAT(world.taps, IsEmpty());
        doubles::clearQueues();
        doubles::responsiblePids().clear();
        world.reset();
    }

    void pass(std::chrono::milliseconds duration)
    {
        world.settleProperties();
        doubles::advanceQueues(duration);
    }
    std::string fileNamed(const std::string& name)
    {
        std::ifstream file(folder.path() / "Library/Application Support/Fadeloom" / name);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void change(void (*how)(SettingsData&))
    {
        auto settings = *controller->state().settings;
        how(settings);
        controller->setSettings(settings);
    }

    TemporaryFolder folder;
    DynamicLibrary library{TCC_DOUBLE};
    TccDouble& tcc = *library.function<TccDouble*()>("tccDouble")();
    doubles::AudioWorld& world = doubles::AudioWorld::current();

    QueueMainLoop mainLoop;
    UnifiedLog systemLog;
    FoundationFolders folders;
    AppKitWorkspace workspace{folder.path() / "icons"};
    MainAppLoginItem loginItem;
    TccPermission permission{TCC_DOUBLE};
    SimulatedText text;
    FoundationClock clock;
    StandardUserDefaults userDefaults;
    UnaskedWeb web;
    MacOSCallApps callApps;
    DispatchQueue utilityQueue{"com.fadeloom.settings"};
    DispatchQueue logQueue{"com.fadeloom.log"};
    CoreAudioSystem audio;
    ExtendedAudioFiles files;
    Platform platform{audio, files, workspace, permission, loginItem, mainLoop, utilityQueue, logQueue,
        folders, systemLog, text, clock, userDefaults, web, callApps};
    EngineLog engineLog{systemLog, logQueue, folder.path() / "Library/Application Support/Fadeloom"};
    std::optional<AudioController> controller;
};

TEST_F(MacOSController, tapsAnAppWhoseHelperPlays)
{
    ASSERT_EQ(controller->state().apps->size(), 1U);
    EXPECT_EQ(controller->state().apps->front().name, "Music");
    ASSERT_EQ(world.taps.size(), 1U);
    EXPECT_EQ(world.taps.begin()->second.name, "Fadeloom Music");

    world.runCycle();

    ASSERT_NE(controller->tapOf("com.example.Music"), nullptr);
    EXPECT_TRUE(controller->parametersOf("com.example.Music")->audioSeen);
    pass(0ms);
    EXPECT_THAT(fileNamed("engine.log"),
        AllOf(HasSubstr("started 1.2.3, permission: granted, output: speakers"),
            HasSubstr("tap ready: com.example.Music")));
}

TEST_F(MacOSController, showsAnIconOnceItIsRendered)
{
    EXPECT_TRUE(controller->state().apps->front().icon.file.empty());
    pass(0ms);
    EXPECT_EQ(controller->state().apps->front().icon.file, folder.path() / "icons/1.png");
}

TEST_F(MacOSController, retargetsTheTapWhenAnotherHelperPlays)
{
    const auto tap = world.taps.begin()->first;
    doubles::responsiblePids()[602] = 501;

    world.addProcess({.pid = 602, .isRunningOutput = true, .amplitude = 0.5F});
    pass(10ms);  // The listener for the process list triggers a poll.
    world.settleProperties();

    ASSERT_TRUE(world.taps.contains(tap));
    EXPECT_EQ(world.taps.at(tap).processes.size(), 2U);
}

TEST_F(MacOSController, followsTheDefaultOutput)
{
    world.plug({.uid = "headphones", .name = "Headphones", .inputs = {1}});
    world.setDefaultOutput("headphones");
    pass(10ms);

    ASSERT_EQ(world.aggregates.size(), 1U);
    EXPECT_EQ(world.aggregates.begin()->second.master, "headphones");
    EXPECT_THAT(world.aggregates.begin()->second.procs.begin()->second.inputIsOn, ElementsAre(0, 1));
}

TEST_F(MacOSController, tapsItsAppsAgainAfterAnAudioServiceRestart)
{
    world.restartService();
    pass(10ms);

    ASSERT_EQ(world.taps.size(), 1U);
    world.runCycle();
    EXPECT_TRUE(controller->parametersOf("com.example.Music")->audioSeen);
}

TEST_F(MacOSController, releasesEverythingWithinAPollWhenThePermissionIsRevoked)
{
    tcc.preflightAnswer = 1;
    pass(AudioController::pollInterval);

    EXPECT_THAT(world.taps, IsEmpty());
    EXPECT_THAT(world.aggregates, IsEmpty());

    tcc.preflightAnswer = 0;
    pass(AudioController::pollInterval);
    EXPECT_EQ(world.taps.size(), 1U);
}

TEST_F(MacOSController, requestsThePermissionAndTapsTheAppOnceItIsGranted)
{
    tcc.preflightAnswer = 2;
    pass(AudioController::pollInterval);
    ASSERT_THAT(world.taps, IsEmpty());

    controller->requestPermission();
    tcc.preflightAnswer = 0;
    tcc.answer(true);
    pass(0ms);

    EXPECT_EQ(world.taps.size(), 1U);
}

TEST_F(MacOSController, reportsWhatTheAudioSystemRefused)
{
    world.setDefaultOutput("speakers");
    tcc.preflightAnswer = 1;
    pass(AudioController::pollInterval);
    world.failNext("create aggregate on system", -50);
    tcc.preflightAnswer = 0;
    pass(AudioController::pollInterval);
    const auto& errors = *controller->state().tapErrors;
    EXPECT_EQ(errors.at("com.example.Music").step, TapStep("Create aggregate device"));
}

TEST_F(MacOSController, recordsToACompleteFile)
{
    controller->startRecording("com.example.Music");
    world.runCycle();
    world.runCycle();
    controller->stopRecording("com.example.Music");
    EXPECT_EQ(doubles::openAudioFiles(), 1U);  // A cycle may still be writing.
    pass(ClosingRecordings::delay);

    EXPECT_EQ(doubles::openAudioFiles(), 0U);
    controller->revealLastRecording();
    EXPECT_THAT(done(), Contains(AllOf(HasSubstr("reveal"), HasSubstr("/Music/Fadeloom Recordings/Music"))));
}

TEST_F(MacOSController, savesAndClosesEverythingOnShutdown)
{
    controller->startRecording("com.example.Music");
    change([](SettingsData& settings) { settings.volumeLimit = 1.5F; });

    controller->shutdown();

    EXPECT_EQ(doubles::openAudioFiles(), 0U);
    EXPECT_THAT(world.taps, IsEmpty());
    EXPECT_THAT(fileNamed("settings.json"), HasSubstr("\"volumeLimit\""));
}

TEST_F(MacOSController, startsAtLoginOnlyIfTheSystemSaysSo)
{
    controller->setLaunchAtLogin(true);
    EXPECT_TRUE(*controller->state().launchAtLogin);

    desktop.loginItem = SMAppServiceStatusRequiresApproval;
    controller->setLaunchAtLogin(false);

    EXPECT_FALSE(*controller->state().launchAtLogin);
}

}  // namespace
}  // namespace fadeloom
