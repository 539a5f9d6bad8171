// SPDX-License-Identifier: MIT
// External events that end a tap: its device dies, the audio service restarts, or it delivers only zeros.
#include "tests/macos/AppTapStage.h"

namespace fadeloom {
namespace {

using std::chrono::seconds;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MacOSAppTapEnd : public AppTapStage {
protected:
    MacOSAppTapEnd() { other = world.addProcess({.pid = 502}); }

    std::unique_ptr<AppTap> made()
    {
        auto tap = create();
        return tap ? std::move(*tap) : nullptr;
    }
    /// Runs the device for this long, and polls the processes every five seconds.
    void run(seconds duration)
    {
        const auto cycles =
            static_cast<double>(duration.count()) * 48000 / doubles::AudioWorld::framesInCycle;
        const auto cyclesInPoll = static_cast<int>(5 * 48000.0 / doubles::AudioWorld::framesInCycle);
        for (int cycle = 1; cycle <= static_cast<int>(cycles) + 1; ++cycle) {
            world.runCycle();
            if (cycle % cyclesInPoll == 0)
                (void)audio.processes(ReadMic::no);
        }
        (void)audio.processes(ReadMic::no);
    }
    void play(float amplitude)
    {
        world.change(501, [=](doubles::Process& process) { process.amplitude = amplitude; });
    }
    void setPlaying(bool isPlaying)
    {
        world.change(501, [=](doubles::Process& process) { process.isRunningOutput = isPlaying; });
        (void)audio.processes(ReadMic::no);
    }

    AudioObjectID other = kAudioObjectUnknown;
};

TEST_F(MacOSAppTapEnd, comesWhenItsDeviceDies)
{
    const auto tap = made();
    ASSERT_TRUE(tap && tap->isRunning());

    world.die("speakers");
    doubles::runQueues();

    EXPECT_FALSE(tap->isRunning());
    EXPECT_EQ(tap->sampleRate(), 48000) << "what it was made with is still known";
}

TEST_F(MacOSAppTapEnd, comesWhenItsDeviceIsUnplugged)
{
    const auto tap = made();

    world.unplug("speakers");
    doubles::runQueues();

    EXPECT_FALSE(tap->isRunning());
}

TEST_F(MacOSAppTapEnd, comesWithAServiceRestartAndLeavesReusedIdsAlone)
{
    auto tap = made();
    int changes = 0;
    const auto devices = audio.whenOutputDevicesChange([&] { ++changes; });
    asked();

    world.restartService();
    doubles::runQueues();
    EXPECT_FALSE(tap->isRunning());
    EXPECT_GT(changes, 0) << "so that somebody makes a new one";
    tap.reset();

    EXPECT_THAT(asked(), ElementsAre("stop nothing", "destroy proc of nothing"));
}

TEST_F(MacOSAppTapEnd, doesNotEndListeners)
{
    int devices = 0;
    int processes = 0;
    const auto first = audio.whenOutputDevicesChange([&] { ++devices; });
    const auto second = audio.whenProcessesChange([&] { ++processes; });
    (void)audio.processes(ReadMic::no);

    for (int i = 0; i < 2; ++i) {
        world.restartService();
        doubles::runQueues();
        (void)audio.processes(ReadMic::no);
    }
    devices = processes = 0;
    world.plug({.uid = "headphones"});
    world.change(501, [](doubles::Process& process) { process.isRunningOutput = false; });
    doubles::runQueues();

    EXPECT_EQ(devices, 1);
    EXPECT_GT(processes, 0);
}

TEST_F(MacOSAppTapEnd, listensForRestartsOnlyWhileThereAreObjectsToLose)
{
    auto tap = made();
    EXPECT_THAT(doubles::journal(), Contains("listen to srst of system"));

    tap.reset();

    EXPECT_THAT(world.listeners, IsEmpty());
}

TEST_F(MacOSAppTapEnd, comesAfterTenSecondsOfZerosWhileItsAppPlays)
{
    const auto tap = made();
    run(seconds(30));
    ASSERT_TRUE(tap->isRunning());

    play(0);
    run(seconds(9));
    EXPECT_TRUE(tap->isRunning());
    run(seconds(2));

    EXPECT_FALSE(tap->isRunning());
}

TEST_F(MacOSAppTapEnd, doesNotComeWhileItsAppIsPaused)
{
    const auto tap = made();
    setPlaying(false);
    run(seconds(60));
    EXPECT_TRUE(tap->isRunning());

    play(0);
    setPlaying(true);
    run(seconds(8));
    EXPECT_TRUE(tap->isRunning()) << "only zeros of a playing app count";
    run(seconds(3));

    EXPECT_FALSE(tap->isRunning());
}

TEST_F(MacOSAppTapEnd, doublesItsDelayEachTimeANewTapDoesNotHelp)
{
    play(0);
    for (const auto tolerance : {seconds(10), seconds(20), seconds(40)}) {
        const auto tap = made();
        (void)audio.processes(ReadMic::no);  // Before its first cycle.
        run(tolerance - seconds(1));
        EXPECT_TRUE(tap->isRunning()) << tolerance.count();
        run(seconds(2));
        EXPECT_FALSE(tap->isRunning()) << tolerance.count();
    }

    const auto tap = made();
    play(0.5F);
    run(seconds(1));
    play(0);
    run(seconds(11));

    EXPECT_FALSE(tap->isRunning()) << "sound has come, and all is as before";
}

TEST_F(MacOSAppTapEnd, ignoresTheSilenceOfOtherApps)
{
    const auto tap = AppTap::create(audio, {other}, {.id = speakers, .uid = "speakers", .name = "A device"},
        TapScope::everyStream, parameters, "Films");
    ASSERT_TRUE(tap);

    run(seconds(30));

    EXPECT_TRUE((*tap)->isRunning());
}

}  // namespace
}  // namespace fadeloom
