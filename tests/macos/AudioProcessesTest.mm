// SPDX-License-Identifier: MIT
#include "platform/macos/AudioProcesses.h"

#include "platform/macos/HAL.h"
#include "tests/macos/PropertyTable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>

namespace fadeloom {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto processList = HAL::address(kAudioHardwarePropertyProcessObjectList);
constexpr auto pidOf = HAL::address(kAudioProcessPropertyPID);
constexpr auto bundleIDOf = HAL::address(kAudioProcessPropertyBundleID);
constexpr auto outputRuns = HAL::address(kAudioProcessPropertyIsRunningOutput);
constexpr auto inputRuns = HAL::address(kAudioProcessPropertyIsRunningInput);

class AudioProcessesTest : public testing::Test {
protected:
    AudioProcessesTest()
    {
        table.setList(kAudioObjectSystemObject, processList, {30, 20});
        addProcess(30, 300, "org.music");
        addProcess(20, 200, "org.call");
    }

    void addProcess(AudioObjectID id, ProcessID pid, const std::string& bundleID)
    {
        table.set(id, pidOf, pid);
        table.setText(id, kAudioProcessPropertyBundleID, bundleID);
        table.set(id, outputRuns, std::uint32_t{0});
        table.set(id, inputRuns, std::uint32_t{0});
    }

    PropertyTable table;
    AudioProcesses processes;
};

TEST_F(AudioProcessesTest, areListedInTheSystemsOrderWithWhatTheyDo)
{
    table.set(30, outputRuns, std::uint32_t{1});
    table.set(20, inputRuns, std::uint32_t{2});

    EXPECT_THAT(processes.all(ReadMic::yes),
        ElementsAre(
            AudioProcess{30, 300, "org.music", true, false}, AudioProcess{20, 200, "org.call", false, true}));
}

TEST_F(AudioProcessesTest, theMicrophoneIsReadOnlyOnRequest)
{
    table.set(20, inputRuns, std::uint32_t{1});

    const auto listed = processes.all(ReadMic::no);

    EXPECT_FALSE(listed[1].isUsingMic);
    EXPECT_EQ(table.readCount(20, inputRuns), 0);
}

TEST_F(AudioProcessesTest, whatCannotBeReadHasItsFallback)
{
    for (const auto& address : {pidOf, bundleIDOf, outputRuns, inputRuns})
        table.remove(20, address);

    EXPECT_THAT(processes.all(ReadMic::yes)[1], (AudioProcess{20, -1, "", false, false}));
}

TEST_F(AudioProcessesTest, processWithoutABundleIdentifierHasAnEmptyOne)
{
    table.setText(20, kAudioProcessPropertyBundleID, std::nullopt);

    EXPECT_EQ(processes.all(ReadMic::no)[1].bundleID, "");
}

TEST_F(AudioProcessesTest, identityIsReadOnceAndStateEveryTime)
{
    for (int poll = 0; poll < 3; ++poll)
        (void)processes.all(ReadMic::yes);

    EXPECT_EQ(table.readCount(30, pidOf), 1);
    EXPECT_EQ(table.readCount(30, bundleIDOf), 1);
    EXPECT_EQ(table.readCount(30, outputRuns), 3);
    EXPECT_EQ(table.readCount(30, inputRuns), 3);
}

TEST_F(AudioProcessesTest, anEndedProcessIsForgotten)
{
    (void)processes.all(ReadMic::no);
    table.setList(kAudioObjectSystemObject, processList, {30});
    (void)processes.all(ReadMic::no);
    table.setList(kAudioObjectSystemObject, processList, {30, 20});
    (void)processes.all(ReadMic::no);

    EXPECT_EQ(table.readCount(20, pidOf), 2);
    EXPECT_EQ(table.readCount(30, pidOf), 1) << "the one that stayed is still known";
}

TEST_F(AudioProcessesTest, listIsEmptyWhenTheSystemGivesNone)
{
    table.remove(kAudioObjectSystemObject, processList);

    EXPECT_THAT(processes.all(ReadMic::yes), IsEmpty());
}

}  // namespace
}  // namespace fadeloom
