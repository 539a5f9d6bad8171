// SPDX-License-Identifier: MIT
#include "engine/AppTap.h"

#include "platform/simulated/SimulatedPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <set>

namespace fadeloom {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using enum AudioOperation;

class AppTapTest : public testing::Test {
protected:
    AppTapTest()
    {
        speakers = world.plug({.uid = "speakers", .name = "Speakers"});
        music = world.launchApp("Music");
        world.startPlaying(music, SimulatedSignal::constant(0.5F));
        process = world.audioSystem().audioObjectOf(music);
    }

    std::expected<std::unique_ptr<AppTap>, TapError> createOn(const std::string& uid, AudioObjectID device)
    {
        return AppTap::create(world.audio(), {process}, uid, device, parameters, "Music");
    }
    std::expected<std::unique_ptr<AppTap>, TapError> create() { return createOn("speakers", speakers); }

    void expectNothingOfOursIsLeft()
    {
        EXPECT_THAT(world.audioSystem().objects().taps, IsEmpty());
        for (const auto& [id, device] : world.audioSystem().objects().devices)
            EXPECT_FALSE(device.aggregate) << id;
    }

    SimulatedPlatform world{testing::TempDir()};
    std::shared_ptr<TapParameters> parameters = std::make_shared<TapParameters>();
    AudioObjectID speakers = kAudioObjectUnknown;
    ProcessID music = -1;
    AudioObjectID process = kAudioObjectUnknown;
};

TEST_F(AppTapTest, playsTheAppThroughItsRenderer)
{
    const auto tap = create();
    ASSERT_TRUE(tap);
    parameters->values.volume = 0;

    world.runCycle(480);

    EXPECT_LT(world.heard("speakers").at(479, 1), 0.5F);
    EXPECT_GT(world.heard("speakers").at(0, 1), 0.0F);
    EXPECT_TRUE(parameters->audioSeen);
    EXPECT_GT(parameters->takePeak(), 0.0F);
}

TEST_F(AppTapTest, knowsWhatItWasMadeOf)
{
    world.changeRate("speakers", 96000);
    const auto tap = create();
    ASSERT_TRUE(tap);

    EXPECT_THAT((*tap)->processIDs(), ElementsAre(process));
    EXPECT_EQ((*tap)->outputUID(), "speakers");
    EXPECT_EQ((*tap)->outputID(), speakers);
    EXPECT_EQ((*tap)->sampleRate(), 96000);
    EXPECT_EQ((*tap)->disabledInputs(), 0);
}

TEST_F(AppTapTest, describesItsTap)
{
    const auto tap = create();
    ASSERT_TRUE(tap);

    const auto& description = world.audio().tapDescriptions().back();

    EXPECT_THAT(description.processes, ElementsAre(process));
    EXPECT_EQ(description.name, "Fadeloom Music");
    EXPECT_TRUE(description.isPrivate);
    EXPECT_EQ(description.muteBehavior, TapMuteBehavior::mutedWhenTapped);
    EXPECT_EQ(description.uuid.size(), 36U);
}

TEST_F(AppTapTest, describesItsAggregateDevice)
{
    const auto tap = create();
    ASSERT_TRUE(tap);

    const auto& description = world.audio().aggregateDescriptions().back();

    EXPECT_EQ(description.name, "Fadeloom Music");
    EXPECT_THAT(description.uid, testing::MatchesRegex("com\\.fadeloom\\.tap\\.[0-9A-F-]{36}"));
    EXPECT_EQ(description.master, "speakers");
    EXPECT_TRUE(description.isPrivate);
    EXPECT_FALSE(description.isStacked);
    EXPECT_TRUE(description.tapAutoStart);
    EXPECT_THAT(description.subDevices, ElementsAre("speakers"));
    ASSERT_EQ(description.taps.size(), 1U);
    EXPECT_EQ(description.taps[0].uid, world.audio().tapDescriptions().back().uuid);
    EXPECT_TRUE(description.taps[0].drift);
}

TEST_F(AppTapTest, namesItsObjectsAnewEveryTime)
{
    std::set<std::string> names;
    for (int i = 0; i < 3; ++i)
        ASSERT_TRUE(create());

    for (const auto& description : world.audio().aggregateDescriptions())
        names.insert(description.uid);
    for (const auto& description : world.audio().tapDescriptions())
        names.insert(description.uuid);
    EXPECT_EQ(names.size(), 6U);
}

TEST_F(AppTapTest, isTakenDownInTheOppositeOrder)
{
    auto tap = create();
    ASSERT_TRUE(tap);

    tap->reset();

    EXPECT_THAT(world.audio().operations(),
        ElementsAre(createProcessTap, createAggregateDevice, createIOProc, start, stop, destroyIOProc,
            destroyAggregateDevice, destroyProcessTap));
    expectNothingOfOursIsLeft();
}

TEST_F(AppTapTest, tearingDownTwiceDoesNothingTheSecondTime)
{
    const auto tap = create();
    ASSERT_TRUE(tap);
    (*tap)->teardown();
    world.audio().clearJournal();

    (*tap)->teardown();

    EXPECT_THAT(world.audio().operations(), IsEmpty());
}

TEST_F(AppTapTest, refusedTeardownGoesOnToTheEnd)
{
    const auto tap = create();
    ASSERT_TRUE(tap);
    world.refuse(stop, HowOften::always);
    world.refuse(destroyIOProc, HowOften::always);

    (*tap)->teardown();

    expectNothingOfOursIsLeft();
}

TEST_F(AppTapTest, followsAnotherListOfProcesses)
{
    const auto tap = create();
    ASSERT_TRUE(tap);
    const auto second = world.openAudio(music);

    EXPECT_TRUE((*tap)->update({process, second}));

    EXPECT_THAT((*tap)->processIDs(), ElementsAre(process, second));
    const auto& descriptions = world.audio().tapDescriptions();
    EXPECT_THAT(descriptions.back().processes, ElementsAre(process, second));
    EXPECT_EQ(descriptions.back().uuid, descriptions.front().uuid);
}

TEST_F(AppTapTest, refusedUpdateLeavesTheOldProcesses)
{
    const auto tap = create();
    ASSERT_TRUE(tap);
    world.refuse(describeProcessTap, HowOften::once);

    EXPECT_FALSE((*tap)->update({process + 1}));
    EXPECT_THAT((*tap)->processIDs(), ElementsAre(process));

    EXPECT_TRUE((*tap)->update({process}));
    EXPECT_THAT(world.audio().tapDescriptions().back().processes, ElementsAre(process));
}

TEST_F(AppTapTest, rebuiltTapGoesOnWithTheSameParameters)
{
    parameters->values.volume = 0.5F;
    for (int i = 0; i < 2; ++i) {
        const auto tap = create();
        ASSERT_TRUE(tap);

        world.runCycle(64);

        EXPECT_EQ(world.heard("speakers").at(0, 1), 0.25F) << "at once, without fading in";
    }
}

TEST_F(AppTapTest, playsOnTheStereoPairThatTheDevicePrefers)
{
    const auto interface =
        world.plug({.uid = "interface", .name = "Interface", .outputStreams = {4}, .stereoPair = {{3, 4}}});
    const auto tap = createOn("interface", interface);
    ASSERT_TRUE(tap);

    world.runCycle(64);

    EXPECT_EQ(world.heard("interface").peak(1), 0.0F);
    EXPECT_EQ(world.heard("interface").peak(2), 0.0F);
    EXPECT_EQ(world.heard("interface").peak(3), 0.5F);
    EXPECT_EQ(world.heard("interface").peak(4), 0.5F);
}

TEST_F(AppTapTest, readsATapThatIsNotInterleaved)
{
    auto format = world.audioSystem().tapFormat();
    format.formatFlags |= kAudioFormatFlagIsNonInterleaved;
    world.audioSystem().setTapFormat(format);
    world.startPlaying(music, SimulatedSignal::constant(0.5F, 0.25F));
    const auto tap = create();
    ASSERT_TRUE(tap);

    world.runCycle(64);

    EXPECT_EQ(world.heard("speakers").peak(1), 0.5F);
    EXPECT_EQ(world.heard("speakers").peak(2), 0.25F);
}

TEST_F(AppTapTest, usesTheTapsRateWhenTheAggregateTellsNone)
{
    auto format = world.audioSystem().tapFormat();
    format.sampleRate = 22050;
    world.audioSystem().setTapFormat(format);
    world.refuse(
        {.operation = readProperty, .selector = kAudioDevicePropertyNominalSampleRate}, HowOften::once);

    const auto tap = create();

    ASSERT_TRUE(tap);
    EXPECT_EQ((*tap)->sampleRate(), 22050);
}

}  // namespace
}  // namespace fadeloom
