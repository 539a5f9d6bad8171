// SPDX-License-Identifier: MIT
// The simulated platform in short stories.
#include "platform/simulated/SimulatedPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;

/// Copies the last input buffer, which is the tap's, to the first output buffer at half its level.
class HalvingProc final : public AudioIOProc {
public:
    void render(const CycleTime& /*time*/, AudioBuffers input, AudioBuffers output) noexcept override
    {
        ++cycles;
        const auto* from = static_cast<const float*>(input.back().data);
        auto* to = static_cast<float*>(output.front().data);
        for (std::size_t i = 0; i < output.front().byteSize / sizeof(float); ++i)
            to[i] = from[i] / 2;
    }

    int cycles = 0;
};

class SimulatedPlatformTest : public ::testing::Test {
protected:
    /// Captures a playing process, routed to an output.
    void tap(ProcessID pid, const std::string& output)
    {
        const auto& state = world.audioWorld().state();
        auto made = world.audio().createTap({.processes = {world.audioWorld().audioProcessOf(pid)},
                                                .output = {.id = state.deviceWithUID(output), .uid = output},
                                                .name = "Music"},
            [this](const TapFormat&) { return proc; });
        ASSERT_TRUE(made);
        tapped = std::move(*made);
    }

    SimulatedPlatform world{"/nowhere"};
    std::shared_ptr<HalvingProc> proc = std::make_shared<HalvingProc>();
    std::unique_ptr<ProcessTap> tapped;
};

TEST_F(SimulatedPlatformTest, playingAppIsHeardOnTheDefaultOutput)
{
    world.plug({.uid = "speakers", .name = "Speakers"});
    world.startPlaying(world.launchApp("Music"), SimulatedSignal::constant(0.5F, 0.25F));

    world.runCycle(64);

    EXPECT_EQ(world.heard("speakers").at(63, 1), 0.5F);
    EXPECT_EQ(world.heard("speakers").at(63, 2), 0.25F);
}

TEST_F(SimulatedPlatformTest, tappedAppIsHeardThroughTheProcedureAlone)
{
    world.plug({.uid = "speakers", .name = "Speakers"});
    const auto music = world.launchApp("Music");
    world.startPlaying(music, SimulatedSignal::constant(0.5F));
    world.startPlaying(world.launchApp("Game"), SimulatedSignal::constant(0.125F));

    tap(music, "speakers");
    world.runCycle(64);

    EXPECT_EQ(world.heard("speakers").at(10, 1), 0.25F + 0.125F);
}

TEST_F(SimulatedPlatformTest, endingATapRestoresTheAppsOwnOutput)
{
    world.plug({.uid = "speakers", .name = "Speakers"});
    const auto music = world.launchApp("Music");
    world.startPlaying(music, SimulatedSignal::constant(0.5F));
    tap(music, "speakers");

    tapped.reset();
    world.runCycle(64);

    EXPECT_EQ(world.heard("speakers").at(10, 1), 0.5F);
    EXPECT_EQ(proc->cycles, 0);
}

TEST_F(SimulatedPlatformTest, advancingRunsACycleEveryTenMillisecondsWhileSomethingPlays)
{
    world.plug({.uid = "speakers", .name = "Speakers"});
    const auto music = world.launchApp("Music");
    world.startPlaying(music);
    tap(music, "speakers");

    world.advance(1s);

    EXPECT_EQ(proc->cycles, 100);
    EXPECT_EQ(world.heard("speakers").frames, 480U);
}

}  // namespace
}  // namespace fadeloom
