// SPDX-License-Identifier: MIT
// The CoreAudio calls of the engine's tap, in order, with their arguments.
#include "tests/macos/AppTapStage.h"

#include <set>

namespace fadeloom {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;
using ::testing::Not;

class MacOSAppTap : public AppTapStage { };

const std::vector<std::string> steps = {
    "create tap on system",
    "get tfmt of tap",
    "create aggregate on system",
    "get nsrt of aggregate",
    "get dch2 outp of device",
    "create proc on aggregate",
    "size stm# inpt of device",
    "start aggregate",
};
const std::vector<std::string> undoneAll = {
    "stop aggregate", "destroy proc of aggregate", "destroy aggregate", "destroy tap"};

TEST_F(MacOSAppTap, isBuiltInOrder)
{
    const auto tap = create();

    ASSERT_TRUE(tap);
    EXPECT_EQ(asked(), steps);
}

TEST_F(MacOSAppTap, isTornDownInReverseOrder)
{
    auto tap = create();
    ASSERT_TRUE(tap);
    asked();

    tap->reset();

    EXPECT_EQ(asked(), undoneAll);
}

TEST_F(MacOSAppTap, refusedTeardownContinuesToTheEnd)
{
    auto tap = create();
    ASSERT_TRUE(tap);
    asked();
    world.failNext("stop aggregate", kAudioHardwareUnspecifiedError);
    world.failNext("destroy proc of aggregate", kAudioHardwareUnspecifiedError);

    tap->reset();

    EXPECT_EQ(asked(), undoneAll);
}

TEST_F(MacOSAppTap, givesItsObjectsNewNamesEveryTime)
{
    std::set<std::string> names;
    for (int i = 0; i < 3; ++i) {
        const auto tap = create();
        ASSERT_TRUE(tap);
        names.insert(onlyTap().uuid);
        names.insert(onlyAggregate().uid);
    }

    EXPECT_EQ(names.size(), 6U);
}

TEST_F(MacOSAppTap, describesItsTap)
{
    const auto tap = create();
    ASSERT_TRUE(tap);

    EXPECT_THAT(onlyTap().processes, ElementsAre(player));
    EXPECT_EQ(onlyTap().name, "Fadeloom Music");
    EXPECT_TRUE(onlyTap().isPrivate);
    EXPECT_EQ(onlyTap().muteBehavior, CATapMutedWhenTapped);
    EXPECT_THAT(onlyTap().uuid, MatchesRegex("[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}"));
}

TEST_F(MacOSAppTap, describesItsAggregateDeviceWithEightEntries)
{
    const auto tap = create();
    ASSERT_TRUE(tap);

    EXPECT_EQ(onlyAggregate().description,
        "{name: Fadeloom Music, uid: " + onlyAggregate().uid
            + ", master: speakers, private: yes, stacked: no, tapautostart: yes, "
              "subdevices: [{uid: speakers}], taps: [{uid: "
            + onlyTap().uuid + ", drift: yes}]}");
    EXPECT_THAT(onlyAggregate().uid, MatchesRegex("com\\.fadeloom\\.tap\\.[0-9A-F-]{36}"));
}

TEST_F(MacOSAppTap, playsTheAppAtTheRateOfTheAggregate)
{
    const auto interface = world.plug({.uid = "interface", .rate = 96000});
    const auto tap = createOn("interface", interface);
    ASSERT_TRUE(tap);

    world.runCycle();

    EXPECT_EQ((*tap)->sampleRate(), 96000);
    EXPECT_TRUE(parameters->audioSeen);
    EXPECT_NEAR(parameters->takePeak(), 0.5F, 0.01F);
}

TEST_F(MacOSAppTap, recordsEachCycleAtItsTime)
{
    const auto tap = create();
    ASSERT_TRUE(tap);
    const auto lanes = std::make_shared<RecordingLanes>(48000);
    parameters->recorder.set(lanes);
    world.runCycle();
    world.pause(std::chrono::seconds(2));
    world.runCycle();

    std::vector<CycleTime> times;
    lanes->drain([&](const CycleTime& time, std::span<const float>) { times.push_back(time); });

    ASSERT_EQ(times.size(), 2U);
    EXPECT_EQ(times[0].clock, world.aggregates.begin()->first);
    EXPECT_EQ(times[1].frame - times[0].frame, 512);
    const std::chrono::duration<double> passed = times[1].host - times[0].host;
    EXPECT_NEAR(passed.count(), 2 + 512 / 48000.0, 1e-6);
}

TEST_F(MacOSAppTap, readsATapWithABufferForEachChannel)
{
    world.tapFormat.mFormatFlags |= kAudioFormatFlagIsNonInterleaved;
    const auto tap = create();
    ASSERT_TRUE(tap);

    world.runCycle();

    EXPECT_NEAR(parameters->takePeak(), 0.5F, 0.01F);
}

TEST_F(MacOSAppTap, switchesTheMicrophoneOfItsDeviceOffAndLeavesTheTapOn)
{
    const auto headset = world.plug({.uid = "headset", .inputs = {1}});
    asked();

    const auto tap = createOn("headset", headset);

    ASSERT_TRUE(tap);
    EXPECT_EQ((*tap)->disabledInputs(), 1);
    EXPECT_THAT(onlyProc().inputIsOn, ElementsAre(0, 1));
    Lines expected(steps.begin(), steps.end() - 1);
    for (const char* step : {"get stm# inpt of device", "size suse inpt of aggregate",
             "get suse inpt of aggregate", "set suse inpt of aggregate", "start aggregate"})
        expected.emplace_back(step);
    EXPECT_EQ(asked(), expected);
    world.runCycle();
    EXPECT_NEAR(parameters->takePeak(), 0.5F, 0.01F);
}

TEST_F(MacOSAppTap, switchesEachInputOfItsDeviceOff)
{
    const auto desk = world.plug({.uid = "desk", .inputs = {2, 2, 8}});

    const auto tap = createOn("desk", desk);

    ASSERT_TRUE(tap);
    EXPECT_EQ((*tap)->disabledInputs(), 3);
    EXPECT_THAT(onlyProc().inputIsOn, ElementsAre(0, 0, 0, 1));
}

TEST_F(MacOSAppTap, isRefusedWhereAMicrophoneCannotBeSwitchedOff)
{
    const auto headset = world.plug({.uid = "headset", .inputs = {1}});
    for (const char* call :
        {"size suse inpt of aggregate", "get suse inpt of aggregate", "set suse inpt of aggregate"}) {
        world.failNext(call, kAudioHardwareUnspecifiedError);
        asked();

        const auto tap = createOn("headset", headset);

        ASSERT_FALSE(tap) << call;
        EXPECT_EQ(tap.error().description(),
            "Switch off the microphone failed: the one of A device would listen while apps play there");
        EXPECT_THAT(asked(), Not(Contains("start aggregate"))) << call;
    }
}

TEST_F(MacOSAppTap, followsANewListOfProcessesWithoutBeingRebuilt)
{
    const auto other = world.addProcess({.pid = 502, .isRunningOutput = true, .amplitude = 0.25F});
    const auto tap = create();
    ASSERT_TRUE(tap);
    const std::string uuid = onlyTap().uuid;
    asked();

    EXPECT_TRUE((*tap)->update({player, other}));
    world.settleProperties();

    EXPECT_THAT(asked(), ElementsAre("set tdsc of tap"));
    EXPECT_THAT(onlyTap().processes, ElementsAre(player, other));
    EXPECT_EQ(onlyTap().uuid, uuid);
    EXPECT_EQ(onlyTap().name, "Fadeloom Music");
    EXPECT_EQ(onlyTap().muteBehavior, CATapMutedWhenTapped);
    EXPECT_TRUE(onlyTap().isPrivate);
}

TEST_F(MacOSAppTap, keepsItsProcessesWhenANewListIsRefused)
{
    const auto tap = create();
    ASSERT_TRUE(tap);
    world.failNext("set tdsc of tap", kAudioHardwareIllegalOperationError);

    EXPECT_FALSE((*tap)->update({player, 4711}));
    world.settleProperties();

    EXPECT_THAT((*tap)->processIDs(), ElementsAre(player));
    EXPECT_THAT(onlyTap().processes, ElementsAre(player));
    EXPECT_TRUE((*tap)->update({}));
    world.settleProperties();
    EXPECT_THAT(onlyTap().processes, IsEmpty());
}

}  // namespace
}  // namespace fadeloom
