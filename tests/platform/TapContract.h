// SPDX-License-Identifier: MIT
// The contract of process taps, aggregate devices and IO procedures.
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
        std::tie(pid, process) = playing(0.5F);
    }

    bool hearsAbout(const ContractTap& tap, float amplitude)
    {
        // A cycle of a sine may miss its top by a little, and a real one may be measured while it fades in.
        return world->waitUntil([&] { return std::abs(tap.proc.lastPeak - amplitude) < amplitude / 10; });
    }

    AudioObjectID device = kAudioObjectUnknown;
    ProcessID pid = -1;
    AudioObjectID process = kAudioObjectUnknown;
};

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(TapContract);

TEST_P(TapContract, aTapDeliversFloatStereo)
{
    const ContractTap tap{hardware, {process}, "contract.a"};

    const auto format = reading.value<AudioStreamBasicDescription>(tap.tap, kAudioTapPropertyFormat);

    EXPECT_EQ(format.formatID, kAudioFormatLinearPCM);
    EXPECT_NE(format.formatFlags & kAudioFormatFlagIsFloat, 0U);
    EXPECT_EQ(format.bitsPerChannel, 32U);
    EXPECT_EQ(format.channelsPerFrame, 2U);
    EXPECT_GE(format.sampleRate, 8000.0);
}

TEST_P(TapContract, anAggregateRunsAtTheRateOfItsOutputWithTheTapAsItsInput)
{
    const ContractTap tap{hardware, {process}, "contract.a"};

    EXPECT_EQ(reading.rate(tap.aggregate), reading.rate(device));
    EXPECT_EQ(
        reading.list(tap.aggregate, kAudioDevicePropertyStreams, kAudioObjectPropertyScopeInput).size(), 1U);
    EXPECT_EQ(
        reading.list(tap.aggregate, kAudioDevicePropertyStreams, kAudioObjectPropertyScopeOutput).size(), 1U);
}

TEST_P(TapContract, aStartedProcedureGetsTheTapAndTheDevice)
{
    ContractTap tap{hardware, {process}, "contract.a"};
    const auto format = reading.value<AudioStreamBasicDescription>(tap.tap, kAudioTapPropertyFormat);
    const bool isInterleaved = (format.formatFlags & kAudioFormatFlagIsNonInterleaved) == 0;

    EXPECT_EQ(tap.start(), kAudioHardwareNoError);

    EXPECT_TRUE(hearsAbout(tap, 0.5F));
    EXPECT_EQ(tap.proc.inputBuffers, isInterleaved ? 1U : 2U);
    EXPECT_EQ(tap.proc.inputChannelsOfLast, isInterleaved ? 2U : 1U);
    EXPECT_EQ(tap.proc.outputChannels, 2U);
    EXPECT_EQ(tap.proc.inputFrames, tap.proc.outputFrames);
}

TEST_P(TapContract, aStoppedProcedureIsNotCalledUntilItIsStartedAgain)
{
    ContractTap tap{hardware, {process}, "contract.a"};
    EXPECT_EQ(tap.start(), kAudioHardwareNoError);
    EXPECT_TRUE(world->waitUntil([&] { return tap.proc.cycles > 0; }));

    EXPECT_EQ(tap.stop(), kAudioHardwareNoError);
    const int cycles = tap.proc.cycles;
    world->settle();

    EXPECT_EQ(tap.proc.cycles, cycles);
    EXPECT_EQ(tap.start(), kAudioHardwareNoError);
    EXPECT_TRUE(world->waitUntil([&] { return tap.proc.cycles > cycles; }));
}

TEST_P(TapContract, aProcedureThatWasNotStartedIsNotCalled)
{
    const ContractTap tap{hardware, {process}, "contract.a"};

    world->settle();

    EXPECT_EQ(tap.proc.cycles, 0);
}

TEST_P(TapContract, aTapThatIsReadFollowsItsNewDescription)
{
    const auto [quiet, quietProcess] = playing(0.125F);
    ContractTap tap{hardware, {process}, "contract.a"};
    EXPECT_EQ(tap.start(), kAudioHardwareNoError);
    EXPECT_TRUE(hearsAbout(tap, 0.5F));

    tap.description.processes = {quietProcess};
    EXPECT_EQ(hardware.describeProcessTap(tap.tap, tap.description), kAudioHardwareNoError);

    EXPECT_TRUE(hearsAbout(tap, 0.125F));
}

// Some systems go on with silent cycles, others have none while nothing plays.
TEST_P(TapContract, aTappedProcessThatEndsIsNotHeardAnyMore)
{
    ContractTap tap{hardware, {process}, "contract.a"};
    EXPECT_EQ(tap.start(), kAudioHardwareNoError);
    EXPECT_TRUE(hearsAbout(tap, 0.5F));

    world->endPlayer(pid);
    world->settle();
    const int cycles = tap.proc.cycles;
    world->settle();

    EXPECT_TRUE(tap.proc.lastPeak == 0 || tap.proc.cycles == cycles);
}

TEST_P(TapContract, twoTapsPlayOnOneDevice)
{
    const auto [other, otherProcess] = playing(0.125F);
    ContractTap first{hardware, {process}, "contract.a"};
    ContractTap second{hardware, {otherProcess}, "contract.a"};

    EXPECT_EQ(first.start(), kAudioHardwareNoError);
    EXPECT_EQ(second.start(), kAudioHardwareNoError);

    EXPECT_TRUE(hearsAbout(first, 0.5F));
    EXPECT_TRUE(hearsAbout(second, 0.125F));
}

TEST_P(TapContract, everythingComesDownInReverseOrderAndCanBeBuiltAgain)
{
    ContractTap tap{hardware, {process}, "contract.a"};
    EXPECT_EQ(tap.start(), kAudioHardwareNoError);
    EXPECT_TRUE(world->waitUntil([&] { return tap.proc.cycles > 0; }));

    EXPECT_THAT(tap.tearDown(), ::testing::ElementsAre(0, 0, 0, 0));

    const int cycles = tap.proc.cycles;
    ContractTap again{hardware, {process}, "contract.a"};
    EXPECT_EQ(again.start(), kAudioHardwareNoError);
    EXPECT_TRUE(hearsAbout(again, 0.5F));
    EXPECT_EQ(tap.proc.cycles, cycles);
    EXPECT_NE(again.tap, tap.tap);
    EXPECT_NE(again.aggregate, tap.aggregate);
}

TEST_P(TapContract, whatIsDestroyedCannotBeDestroyedAgain)
{
    ContractTap tap{hardware, {process}, "contract.a"};
    tap.tearDown();

    EXPECT_NE(hardware.stop(tap.aggregate, tap.procID), kAudioHardwareNoError);
    EXPECT_NE(hardware.destroyIOProc(tap.aggregate, tap.procID), kAudioHardwareNoError);
    EXPECT_EQ(hardware.destroyAggregateDevice(tap.aggregate), kAudioHardwareBadObjectError);
    EXPECT_EQ(hardware.destroyProcessTap(tap.tap), kAudioHardwareBadObjectError);
    EXPECT_EQ(hardware.describeProcessTap(tap.tap, tap.description), kAudioHardwareBadObjectError);
    EXPECT_EQ(
        reading.statusOfReading(tap.tap, {kAudioTapPropertyFormat}, sizeof(AudioStreamBasicDescription)),
        kAudioHardwareBadObjectError);
}

TEST_P(TapContract, aRealDeviceIsNotAnAggregateToDestroy)
{
    EXPECT_NE(hardware.destroyAggregateDevice(device), kAudioHardwareNoError);
    EXPECT_EQ(reading.device("contract.a"), device);
}

TEST_P(TapContract, anAggregateOnADeviceThatIsNotThereNeverStarts)
{
    ContractTap tap{hardware, {process}, "contract.nowhere"};

    EXPECT_NE(tap.start(), kAudioHardwareNoError);
    EXPECT_EQ(tap.proc.cycles, 0);
}

TEST_P(TapContract, anAggregateWhoseDeviceWasUnpluggedDoesNotStart)
{
    plugged("contract.b");
    ContractTap tap{hardware, {process}, "contract.b"};
    unplugged("contract.b");

    EXPECT_NE(tap.start(), kAudioHardwareNoError);
    EXPECT_EQ(tap.proc.cycles, 0);
}

TEST_P(TapContract, aTapWhoseDeviceIsUnpluggedCanBeTakenDown)
{
    plugged("contract.b");
    ContractTap tap{hardware, {process}, "contract.b"};
    EXPECT_EQ(tap.start(), kAudioHardwareNoError);
    EXPECT_TRUE(world->waitUntil([&] { return tap.proc.cycles > 0; }));

    unplugged("contract.b");
    const auto statuses = tap.tearDown();
    const int cycles = tap.proc.cycles;
    world->settle();

    EXPECT_EQ(statuses[2], kAudioHardwareNoError);
    EXPECT_EQ(statuses[3], kAudioHardwareNoError);
    EXPECT_EQ(tap.proc.cycles, cycles);
}

}  // namespace fadeloom
