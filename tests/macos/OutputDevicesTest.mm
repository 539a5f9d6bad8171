// SPDX-License-Identifier: MIT
#include "platform/macos/OutputDevices.h"

#include "platform/macos/HAL.h"
#include "tests/macos/PropertyTable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdint>

namespace fadeloom {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr AudioObjectID device = 50;
constexpr auto outputStreams = HAL::address(kAudioDevicePropertyStreams, kAudioObjectPropertyScopeOutput);
constexpr auto inputStreams = HAL::address(kAudioDevicePropertyStreams, kAudioObjectPropertyScopeInput);
constexpr auto preferredStereo =
    HAL::address(kAudioDevicePropertyPreferredChannelsForStereo, kAudioObjectPropertyScopeOutput);
constexpr auto defaultOutput = HAL::address(kAudioHardwarePropertyDefaultOutputDevice);

void addOutput(PropertyTable& table, AudioObjectID id, const std::string& uid, const std::string& name)
{
    table.setList(id, outputStreams, {id + 1});
    table.setText(id, kAudioDevicePropertyDeviceUID, uid);
    table.setText(id, kAudioObjectPropertyName, name);
}

class OutputDevicesTest : public testing::Test {
protected:
    OutputDevicesTest()
    {
        table.setList(
            kAudioObjectSystemObject, HAL::address(kAudioHardwarePropertyDevices), {70, 60, device});
        addOutput(table, 70, "headphones", "Headphones");
        addOutput(table, 60, "screen", "Screen");
        addOutput(table, device, "speakers", "Speakers");
    }

    std::vector<std::string> listedUIDs() const
    {
        std::vector<std::string> uids;
        for (const auto& listed : OutputDevices::all())
            uids.push_back(listed.uid);
        return uids;
    }

    PropertyTable table;
};

TEST_F(OutputDevicesTest, areListedInTheSystemsOrder)
{
    EXPECT_THAT(OutputDevices::all(),
        ElementsAre(OutputDevice{70, "headphones", "Headphones"}, OutputDevice{60, "screen", "Screen"},
            OutputDevice{device, "speakers", "Speakers"}));
}

TEST_F(OutputDevicesTest, deviceThatOnlyRecordsIsNotListed)
{
    table.setList(60, outputStreams, {});
    table.setList(60, inputStreams, {61});
    EXPECT_THAT(listedUIDs(), ElementsAre("headphones", "speakers"));

    table.remove(60, outputStreams);
    EXPECT_THAT(listedUIDs(), ElementsAre("headphones", "speakers"));
}

TEST_F(OutputDevicesTest, ourOwnAggregateDevicesAreNotListed)
{
    table.setText(60, kAudioDevicePropertyDeviceUID, "com.fadeloom.tap.1B4E28BA-2FA1-41D2-883F-0016D3CCA427");

    EXPECT_THAT(listedUIDs(), ElementsAre("headphones", "speakers"));
}

TEST_F(OutputDevicesTest, deviceWithoutUniqueIDOrNameIsNotListed)
{
    table.setText(60, kAudioDevicePropertyDeviceUID, std::nullopt);
    table.remove(70, HAL::address(kAudioObjectPropertyName));

    EXPECT_THAT(listedUIDs(), ElementsAre("speakers"));
}

TEST_F(OutputDevicesTest, listIsEmptyWhenTheSystemGivesNone)
{
    table.remove(kAudioObjectSystemObject, HAL::address(kAudioHardwarePropertyDevices));

    EXPECT_THAT(OutputDevices::all(), IsEmpty());
}

TEST_F(OutputDevicesTest, defaultOutputIsNamedByItsUniqueID)
{
    table.set(kAudioObjectSystemObject, defaultOutput, AudioObjectID{60});

    EXPECT_EQ(OutputDevices::defaultOutputUID(), "screen");
}

TEST_F(OutputDevicesTest, defaultOutputIsAbsentWhenThereIsNoneOrItCannotBeRead)
{
    EXPECT_EQ(OutputDevices::defaultOutputUID(), std::nullopt);

    table.set(kAudioObjectSystemObject, defaultOutput, kAudioObjectUnknown);
    EXPECT_EQ(OutputDevices::defaultOutputUID(), std::nullopt);

    table.set(kAudioObjectSystemObject, defaultOutput, AudioObjectID{99});
    EXPECT_EQ(OutputDevices::defaultOutputUID(), std::nullopt);
}

TEST_F(OutputDevicesTest, stereoPairIsTheOneThatTheDevicePrefers)
{
    table.set(device, preferredStereo, std::array<std::uint32_t, 2>{3, 4});
    EXPECT_EQ(OutputDevices::stereoChannels(device), (StereoChannels{3, 4}));

    table.set(device, preferredStereo, std::array<std::uint32_t, 2>{1, 1});
    EXPECT_EQ(OutputDevices::stereoChannels(device), (StereoChannels{1, 1}));
}

TEST_F(OutputDevicesTest, stereoPairIsTheFirstTwoWhenTheDeviceNamesNone)
{
    EXPECT_EQ(OutputDevices::stereoChannels(device), (StereoChannels{1, 2}));

    for (const std::array<std::uint32_t, 2> pair : {std::array{0U, 0U}, {3U, 0U}, {0U, 4U}}) {
        table.set(device, preferredStereo, pair);
        EXPECT_EQ(OutputDevices::stereoChannels(device), (StereoChannels{1, 2}));
    }
}

TEST_F(OutputDevicesTest, stereoPairOfAnotherSizeIsNotRead)
{
    table.set(device, preferredStereo, std::uint32_t{3});

    EXPECT_EQ(OutputDevices::stereoChannels(device), (StereoChannels{1, 2}));
}

}  // namespace
}  // namespace fadeloom
