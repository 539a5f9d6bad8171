// SPDX-License-Identifier: MIT
// The contract of process taps.
#pragma once

#include "tests/platform/ContractFixture.h"
#include "tests/platform/ContractTap.h"

namespace fadeloom {

/// A device, and a player on it.
class TapContract : public PlatformContract {
protected:
    TapContract()
    {
        device = plugged("contract.a");
        makeDefault("contract.a");
        player = playing(0.5F);
    }

    bool hearsAbout(const ContractTap& tap, float amplitude)
    {
        // A cycle of a sine may just miss its peak, and a real one may be measured while it fades in.
        return world->waitUntil([&] { return std::abs(tap.proc->lastPeak - amplitude) < amplitude / 10; });
    }

    OutputDevice device;
    AudioProcess player;
};

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(TapContract);

TEST_P(TapContract, aTapRunsAtTheRateOfItsDevice)
{
    ContractTap tap{audio, {player.id}, device};
    ASSERT_TRUE(tap.isRunning());

    EXPECT_EQ(tap->sampleRate(), audio.sampleRate(device.id));
    EXPECT_EQ(tap.format->sampleRate, tap->sampleRate());
    EXPECT_EQ(tap->disabledInputs(), 0);
}

TEST_P(TapContract, stereoGoesToTheFirstTwoChannels)
{
    const ContractTap tap{audio, {player.id}, device};

    EXPECT_EQ(tap.format->output, (StereoChannels{1, 2}));
}

TEST_P(TapContract, aMonoDeviceNamesItsChannelTwice)
{
    const ContractTap tap{audio, {player.id}, plugged("contract.mono", "Contract mono", 1)};
    ASSERT_TRUE(tap.isRunning());

    EXPECT_EQ(tap.format->output, (StereoChannels{1, 1}));
}

TEST_P(TapContract, aSurroundDeviceNamesTwoOfItsChannels)
{
    const ContractTap tap{audio, {player.id}, plugged("contract.surround", "Contract surround", 6)};
    ASSERT_TRUE(tap.isRunning());

    const auto [left, right] = tap.format->output;

    EXPECT_NE(left, right);
    EXPECT_TRUE(left >= 1 && left <= 6) << left;
    EXPECT_TRUE(right >= 1 && right <= 6) << right;
}

TEST_P(TapContract, theProcedureGetsTheTapAndTheDevice)
{
    const ContractTap tap{audio, {player.id}, device};
    ASSERT_TRUE(tap.isRunning());

    EXPECT_TRUE(hearsAbout(tap, 0.5F));
    EXPECT_EQ(tap.proc->inputBuffers, tap.format->tapBufferCount);
    EXPECT_EQ(tap.proc->inputChannelsOfLast, tap.format->isTapInterleaved ? 2U : 1U);
    EXPECT_EQ(tap.proc->outputChannels, 2U);
    EXPECT_EQ(tap.proc->inputFrames, tap.proc->outputFrames);
}

TEST_P(TapContract, anEndedTapIsNoLongerCalled)
{
    ContractTap tap{audio, {player.id}, device};
    EXPECT_TRUE(world->waitUntil([&] { return tap.proc->cycles > 0; }));

    tap.end();
    const int cycles = tap.proc->cycles;
    world->settle();

    EXPECT_EQ(tap.proc->cycles, cycles);
}

TEST_P(TapContract, theProcedureLivesForAsLongAsItMayBeCalled)
{
    std::weak_ptr<AudioIOProc> weakly;
    auto tap = audio.createTap(
        {.processes = {player.id}, .output = device, .name = "Contract"}, [&](const TapFormat&) {
            auto proc = std::make_shared<ListeningProc>();
            weakly = proc;
            return proc;
        });
    ASSERT_TRUE(tap);

    world->settle();
    EXPECT_FALSE(weakly.expired());
    tap->reset();

    EXPECT_TRUE(world->waitUntil([&] { return weakly.expired(); }));
}

TEST_P(TapContract, aTapFollowsAnotherListOfProcesses)
{
    const AudioProcess quiet = playing(0.125F);
    ContractTap tap{audio, {player.id}, device};
    ASSERT_TRUE(tap.isRunning());
    EXPECT_TRUE(hearsAbout(tap, 0.5F));

    EXPECT_TRUE(tap->setProcesses({quiet.id}));

    EXPECT_TRUE(hearsAbout(tap, 0.125F));
}

// Some systems continue with silent cycles, others stop cycling while nothing plays.
TEST_P(TapContract, aTappedProcessThatExitsIsNoLongerAudible)
{
    const ContractTap tap{audio, {player.id}, device};
    EXPECT_TRUE(hearsAbout(tap, 0.5F));

    world->endPlayer(player.pid);
    world->settle();
    const int cycles = tap.proc->cycles;
    world->settle();

    EXPECT_TRUE(tap.proc->lastPeak == 0 || tap.proc->cycles == cycles);
}

TEST_P(TapContract, twoTapsPlayOnOneDevice)
{
    const AudioProcess other = playing(0.125F);
    const ContractTap first{audio, {player.id}, device};
    const ContractTap second{audio, {other.id}, device};

    EXPECT_TRUE(hearsAbout(first, 0.5F));
    EXPECT_TRUE(hearsAbout(second, 0.125F));
}

TEST_P(TapContract, aTapCanBeMadeAgain)
{
    ContractTap tap{audio, {player.id}, device};
    EXPECT_TRUE(world->waitUntil([&] { return tap.proc->cycles > 0; }));
    tap.end();
    const int cycles = tap.proc->cycles;

    const ContractTap again{audio, {player.id}, device};

    EXPECT_TRUE(hearsAbout(again, 0.5F));
    EXPECT_EQ(tap.proc->cycles, cycles);
}

TEST_P(TapContract, aTapOnADeviceThatIsNotThereIsRefused)
{
    const ContractTap tap{audio, {player.id}, {.id = 4'000'000'000, .uid = "contract.nowhere", .name = ""}};

    EXPECT_TRUE(tap.error);
    EXPECT_EQ(tap.proc->cycles, 0);
}

TEST_P(TapContract, aTapOnAnUnpluggedDeviceIsRefused)
{
    const OutputDevice gone = plugged("contract.b");
    unplugged("contract.b");

    const ContractTap tap{audio, {player.id}, gone};

    EXPECT_TRUE(tap.error);
    EXPECT_EQ(tap.proc->cycles, 0);
}

TEST_P(TapContract, aTapWhoseDeviceIsUnpluggedCanBeEnded)
{
    ContractTap tap{audio, {player.id}, plugged("contract.b")};
    EXPECT_TRUE(world->waitUntil([&] { return tap.proc->cycles > 0; }));

    unplugged("contract.b");
    tap.end();
    const int cycles = tap.proc->cycles;
    world->settle();

    EXPECT_EQ(tap.proc->cycles, cycles);
}

}  // namespace fadeloom
