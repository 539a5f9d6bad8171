// SPDX-License-Identifier: MIT
// The program without a window, started on macOS with Qt's own main loop.
#include "app/HeadlessProgram.h"
#include "platform/macos/OneInstance.h"
#include "tests/macos/DesktopStage.h"
#include "tests/macos/doubles/AudioWorld.h"
#include "tests/macos/doubles/QtMainQueue.h"
#include "tests/support/TemporaryFolder.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <memory>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class MacOSHeadlessProgram : public DesktopStage {
protected:
    MacOSHeadlessProgram()
    {
        qunsetenv("QT_EVENT_DISPATCHER_CORE_FOUNDATION");
        desktop.folders = folder.path();
        world.reset();
        world.plug({.uid = "speakers", .name = "Speakers"});
        doubles::launch("Music", 501, "/Applications/Music.app/");
    }
    ~MacOSHeadlessProgram() override
    {
        doubles::whenProgramRuns() = nullptr;
        doubles::clearQueues();
        world.reset();
    }

    int run()
    {
        char name[] = "fadeloom";
        char* arguments[] = {name, nullptr};
        return runHeadless(1, arguments, false);
    }
    /// Checks every few milliseconds, and ends the program once the condition holds or after three seconds: before the
    /// program would poll.
    static void endOnce(const std::function<bool()>& condition)
    {
        auto* const looks = new QTimer(QCoreApplication::instance());
        auto passed = std::make_shared<QElapsedTimer>();
        passed->start();
        QObject::connect(looks, &QTimer::timeout, looks, [=] {
            if (!condition() && !passed->hasExpired(3000))
                return;
            looks->stop();
            std::raise(SIGTERM);
        });
        looks->start(5ms);
    }

    TemporaryFolder folder;
    doubles::AudioWorld& world = doubles::AudioWorld::current();
};

TEST_F(MacOSHeadlessProgram, tapsAnAppThatStartsPlayingLater)
{
    bool isTaken = false;
    doubles::whenProgramRuns() = [&] {
        EXPECT_THAT(world.taps, IsEmpty());
        world.addProcess({.pid = 501, .isRunningOutput = true, .amplitude = 0.5F});
        endOnce([&] { return isTaken = !world.taps.empty(); });
    };

    EXPECT_EQ(run(), 0);

    EXPECT_TRUE(isTaken) << "what the system announces has to arrive";
    EXPECT_THAT(world.taps, IsEmpty());
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "Library/Application Support/Fadeloom/engine.log"));
}

TEST_F(MacOSHeadlessProgram, doesNotStartTwice)
{
    OneInstance other(folder.path() / "Library/Application Support/Fadeloom");
    ASSERT_EQ(other.claim(true), OneInstance::Start::first);

    ::testing::internal::CaptureStderr();
    EXPECT_EQ(run(), 3);

    EXPECT_THAT(::testing::internal::GetCapturedStderr(), HasSubstr("it is running already"));
}

TEST_F(MacOSHeadlessProgram, reportsAMissingSettingsFolder)
{
    desktop.folders.clear();

    ::testing::internal::CaptureStderr();
    EXPECT_EQ(run(), 1);

    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "fadeloom: there is no folder for its settings\n");
}

}  // namespace
}  // namespace fadeloom
