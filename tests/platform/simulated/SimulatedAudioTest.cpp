// SPDX-License-Identifier: MIT
// Details of the simulated audio system that the common contract does not reach.
#include "platform/simulated/SimulatedPlatform.h"
#include "tests/platform/AudioReading.h"
#include "tests/platform/ContractTap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>

namespace fadeloom {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SimulatedAudioTest : public ::testing::Test {
protected:
    AudioObjectID playing(const std::string& name, float sample)
    {
        const ProcessID pid = world.launchApp(name);
        world.startPlaying(pid, SimulatedSignal::constant(sample));
        return world.audioSystem().audioObjectOf(pid);
    }

    SimulatedPlatform world{"/nowhere"};
    AudioReading reading{world.audio()};
};

TEST_F(SimulatedAudioTest, readingAThousandProcessesIsCountedBySelector)
{
    for (int i = 0; i < 1000; ++i)
        world.openAudio(world.launchApp("App " + std::to_string(i)));
    world.audio().clearReadCounts();

    for (const auto id : reading.list(kAudioObjectSystemObject, kAudioHardwarePropertyProcessObjectList)) {
        EXPECT_FALSE(reading.isPlaying(id));
        EXPECT_NE(reading.text(id, kAudioProcessPropertyBundleID), "");
    }

    EXPECT_EQ(world.audio().readCount(kAudioProcessPropertyIsRunningOutput), 1000);
    EXPECT_EQ(world.audio().readCount(kAudioProcessPropertyBundleID), 1000);
    EXPECT_EQ(world.audio().readCount(), 2001);
}

TEST_F(SimulatedAudioTest, aDeviceWithAMicrophoneGivesTheAggregateItsInputFirst)
{
    world.plug({.uid = "headset", .name = "Headset", .inputStreams = {1}});
    ContractTap tap{world.audio(), {playing("Music", 0.5F)}, "headset"};

    EXPECT_EQ(tap.start(), kAudioHardwareNoError);
    world.runCycle(32);

    EXPECT_EQ(tap.proc.inputBuffers, 2U);
    EXPECT_EQ(tap.proc.inputChannelsOfLast, 2U);
    EXPECT_EQ(tap.proc.lastPeak, 0.5F);
}

TEST_F(SimulatedAudioTest, aStreamThatIsSwitchedOffHasNoData)
{
    world.plug({.uid = "headset", .name = "Headset", .inputStreams = {1}});
    ContractTap tap{world.audio(), {playing("Music", 0.5F)}, "headset"};
    const AudioObjectPropertyAddress address{
        kAudioDevicePropertyIOProcStreamUsage, kAudioObjectPropertyScopeInput};
    std::vector<std::byte> record(world.audio().propertySize(tap.aggregate, address).value());
    std::memcpy(record.data(), &tap.procID, sizeof tap.procID);

    ASSERT_EQ(world.audio().readProperty(tap.aggregate, address, record).value_or(0), record.size());
    EXPECT_EQ(record.size(), AudioHardwareIOProcStreamUsage::flagsOffset + 2 * sizeof(std::uint32_t));
    std::uint32_t flags[2];
    std::memcpy(flags, record.data() + AudioHardwareIOProcStreamUsage::flagsOffset, sizeof flags);
    EXPECT_THAT(flags, ElementsAre(1, 1));
    flags[1] = 0;  // The tap, so that the procedure hears nothing.
    std::memcpy(record.data() + AudioHardwareIOProcStreamUsage::flagsOffset, flags, sizeof flags);
    EXPECT_EQ(world.audio().writeProperty(tap.aggregate, address, record), kAudioHardwareNoError);
    EXPECT_EQ(tap.start(), kAudioHardwareNoError);
    world.runCycle(32);

    EXPECT_EQ(tap.proc.cycles, 1);
    EXPECT_EQ(tap.proc.inputFrames, 32U);
    EXPECT_EQ(tap.proc.lastPeak, 0.0F);
}

TEST_F(SimulatedAudioTest, streamUsageNeedsAProcedureOfTheDevice)
{
    world.plug({.uid = "headset", .name = "Headset", .inputStreams = {1}});
    const AudioObjectPropertyAddress address{
        kAudioDevicePropertyIOProcStreamUsage, kAudioObjectPropertyScopeInput};

    const auto device = reading.device("headset");

    EXPECT_EQ(reading.statusOfReading(device, address, 16), kAudioHardwareIllegalOperationError);
    EXPECT_EQ(reading.statusOfReading(device, address, 8), kAudioHardwareBadPropertySizeError);
}

TEST_F(SimulatedAudioTest, aNonInterleavedTapHasABufferForEachChannel)
{
    world.plug({.uid = "speakers", .name = "Speakers"});
    auto format = world.audioSystem().tapFormat();
    format.formatFlags |= kAudioFormatFlagIsNonInterleaved;
    format.bytesPerFrame = format.bytesPerPacket = 4;
    world.audioSystem().setTapFormat(format);
    ContractTap tap{world.audio(), {playing("Music", 0.5F)}, "speakers"};

    EXPECT_EQ(tap.start(), kAudioHardwareNoError);
    world.runCycle(32);

    EXPECT_EQ(tap.proc.inputBuffers, 2U);
    EXPECT_EQ(tap.proc.inputChannelsOfLast, 1U);
    EXPECT_EQ(tap.proc.inputFrames, 32U);
}

TEST_F(SimulatedAudioTest, anAggregateIsListedUnderItsOwnUniqueIdWhileItLives)
{
    world.plug({.uid = "speakers", .name = "Speakers"});
    ContractTap tap{world.audio(), {}, "speakers"};
    const std::string uid = "com.fadeloom.tap." + tap.description.uuid;

    EXPECT_EQ(reading.device(uid), tap.aggregate);
    tap.tearDown();

    EXPECT_EQ(reading.device(uid), kAudioObjectUnknown);
}

TEST_F(SimulatedAudioTest, aRateChangeReachesTheAggregatesAndIsTold)
{
    world.plug({.uid = "speakers", .name = "Speakers"});
    const ContractTap tap{world.audio(), {}, "speakers"};
    int told = 0;
    const auto subscription = world.audio().listen(
        reading.device("speakers"), {kAudioDevicePropertyNominalSampleRate}, [&] { ++told; });

    world.changeRate("speakers", 44100);
    world.changeRate("speakers", 44100);
    world.runPosted();

    EXPECT_EQ(reading.rate(tap.aggregate), 44100.0);
    EXPECT_EQ(told, 1);
}

TEST_F(SimulatedAudioTest, soundKeepsToThePreferredPairOfItsDevice)
{
    world.plug({.uid = "interface",
        .name = "Interface",
        .outputStreams = {2, 2},
        .stereoPair = std::array<std::uint32_t, 2>{3, 4}});
    playing("Music", 0.5F);

    world.runCycle(16);

    EXPECT_EQ(world.heard("interface").channels, 4U);
    EXPECT_EQ(world.heard("interface").peak(1), 0.0F);
    EXPECT_EQ(world.heard("interface").peak(3), 0.5F);
    EXPECT_EQ(world.heard("interface").peak(4), 0.5F);
}

TEST_F(SimulatedAudioTest, onlyTheDefaultOutputIsHeardWithoutTaps)
{
    world.plug({.uid = "speakers", .name = "Speakers"});
    world.plug({.uid = "headphones", .name = "Headphones"});
    playing("Music", 0.5F);

    world.setDefaultOutput("headphones");
    world.runCycle(16);

    EXPECT_TRUE(world.heard("speakers").isSilent());
    EXPECT_EQ(world.heard("headphones").peak(2), 0.5F);
}

TEST_F(SimulatedAudioTest, everyPropertyReadCanBeRefusedByItself)
{
    world.plug({.uid = "speakers", .name = "Speakers"});
    const AudioObjectID other = world.plug({.uid = "other", .name = "Other"});
    world.refuse({AudioOperation::readProperty, kAudioObjectPropertyName, other}, HowOften::always, -5);

    EXPECT_EQ(world.audio().readText(other, {kAudioObjectPropertyName}).error(), -5);
    EXPECT_EQ(reading.text(other, kAudioDevicePropertyDeviceUID), "other");
    EXPECT_EQ(reading.text(reading.device("speakers"), kAudioObjectPropertyName), "Speakers");

    world.allow(AudioOperation::readProperty);
    EXPECT_EQ(reading.text(other, kAudioObjectPropertyName), "Other");
}

TEST_F(SimulatedAudioTest, everyChangingCallCanBeRefused)
{
    using enum AudioOperation;
    world.plug({.uid = "speakers", .name = "Speakers"});
    for (const auto operation : {createProcessTap, createAggregateDevice, createIOProc, start, stop,
             destroyIOProc, destroyAggregateDevice, destroyProcessTap})
        world.refuse(operation, HowOften::once, -7);

    ContractTap tap{world.audio(), {}, "speakers"};
    tap.start();
    tap.tearDown();

    for (const auto& call : world.audio().journal())
        EXPECT_EQ(call.status, -7) << static_cast<int>(call.operation);
    EXPECT_EQ(world.audio().journal().size(), 8U);
}

TEST_F(SimulatedAudioTest, changesInOneTurnAreToldOnce)
{
    int told = 0;
    const auto subscription = world.audio().listen(
        kAudioObjectSystemObject, {kAudioHardwarePropertyProcessObjectList}, [&] { ++told; });

    playing("Music", 0.5F);
    playing("Game", 0.5F);
    world.runPosted();

    EXPECT_EQ(told, 1);
    EXPECT_EQ(world.audio().listenerCount(), 1U);
}

TEST_F(SimulatedAudioTest, aTapOfAProcessThatIsGoneIsRefused)
{
    const AudioObjectID music = playing("Music", 0.5F);
    world.audioSystem().closeAudio(music);

    const auto tap = world.audio().createProcessTap({{music}, "uuid", "name", true, TapMuteBehavior::muted});

    EXPECT_EQ(tap.error(), kAudioHardwareBadObjectError);
}

}  // namespace
}  // namespace fadeloom
