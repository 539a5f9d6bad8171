// SPDX-License-Identifier: MIT
#include "platform/macos/HAL.h"

#include "tests/macos/PropertyTable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>

namespace fadeloom {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr AudioObjectID object = 40;
constexpr auto list = HAL::address(kAudioHardwarePropertyDevices);
constexpr auto rate = HAL::address(kAudioDevicePropertyNominalSampleRate);

std::vector<AudioObjectID> readList()
{
    return HAL::getArray(object, list.mSelector, list.mScope);
}

TEST(HAL, readsAText)
{
    PropertyTable table;
    table.setText(object, kAudioObjectPropertyName, "Speakers");

    EXPECT_EQ(HAL::string(object, kAudioObjectPropertyName), "Speakers");
}

TEST(HAL, textIsAbsentWhenThereIsNoneOrItCannotBeRead)
{
    PropertyTable table;
    table.setText(object, kAudioObjectPropertyName, std::nullopt);

    EXPECT_EQ(HAL::string(object, kAudioObjectPropertyName), std::nullopt);
    EXPECT_EQ(HAL::string(object + 1, kAudioObjectPropertyName), std::nullopt);
}

TEST(HAL, readsAListInItsOrder)
{
    PropertyTable table;
    table.setList(object, list, {7, 3, 5});

    EXPECT_THAT(readList(), ElementsAre(7, 3, 5));
}

TEST(HAL, listIsReadInItsScope)
{
    PropertyTable table;
    table.setList(object, HAL::address(kAudioDevicePropertyStreams, kAudioObjectPropertyScopeInput), {9});

    EXPECT_THAT(
        HAL::getArray(object, kAudioDevicePropertyStreams, kAudioObjectPropertyScopeInput), ElementsAre(9));
    EXPECT_THAT(
        HAL::getArray(object, kAudioDevicePropertyStreams, kAudioObjectPropertyScopeOutput), IsEmpty());
}

TEST(HAL, listIsEmptyWhenItHasNoEntryOrCannotBeRead)
{
    PropertyTable table;
    EXPECT_THAT(readList(), IsEmpty());

    table.setList(object, list, {});
    EXPECT_THAT(readList(), IsEmpty());

    table.setList(object, list, {1, 2});
    table.readError = kAudioHardwareBadObjectError;
    EXPECT_THAT(readList(), IsEmpty());
    EXPECT_EQ(table.readCount(object, list), 1) << "only a list that has grown is asked for again";
}

TEST(HAL, aListThatGrowsWhileItIsReadIsReadAgain)
{
    PropertyTable table;
    table.setList(object, list, {1});
    bool hasGrown = false;
    table.beforeRead = [&](auto) {
        if (!std::exchange(hasGrown, true))
            table.setList(object, list, {1, 2, 3});
    };

    EXPECT_THAT(readList(), ElementsAre(1, 2, 3));
}

TEST(HAL, listThatShrinksWhileItIsReadHasOnlyWhatWasRead)
{
    PropertyTable table;
    table.setList(object, list, {1, 2, 3});
    table.beforeRead = [&](auto) { table.setList(object, list, {2}); };

    EXPECT_THAT(readList(), ElementsAre(2));
}

TEST(HAL, listThatNeverStopsGrowingIsGivenUp)
{
    PropertyTable table;
    table.setList(object, list, {1});
    table.beforeRead = [&](auto asked) {
        table.setBytes(object, list, std::vector<std::byte>(asked.size() + sizeof(AudioObjectID)));
    };

    EXPECT_THAT(readList(), IsEmpty());
    EXPECT_LE(table.readCount(object, list), 10);
}

TEST(HAL, listOfAnOddSizeHasItsWholeEntries)
{
    PropertyTable table;
    table.setBytes(object, list, std::vector<std::byte>(11));

    EXPECT_THAT(readList(), ElementsAre(0, 0));
}

TEST(HAL, readsAndWritesAValue)
{
    PropertyTable table;
    table.set(object, rate, 44100.0);
    EXPECT_EQ(HAL::value<double>(object, rate), 44100.0);

    EXPECT_EQ(HAL::setValue(object, rate, 96000.0), kAudioHardwareNoError);
    EXPECT_EQ(HAL::value<double>(object, rate), 96000.0);
}

TEST(HAL, valueOfAnotherSizeIsAbsent)
{
    PropertyTable table;
    table.set(object, rate, 44100.0F);
    EXPECT_EQ(HAL::value<double>(object, rate), std::nullopt);

    table.setBytes(object, rate, std::vector<std::byte>(16));
    EXPECT_EQ(HAL::value<double>(object, rate), std::nullopt);
    EXPECT_EQ(HAL::value<double>(object + 1, rate), std::nullopt);
}

TEST(HAL, refusedWriteGivesItsStatus)
{
    PropertyTable table;
    table.set(object, rate, 44100.0);
    table.writeError = kAudioHardwareIllegalOperationError;

    EXPECT_EQ(HAL::setValue(object, rate, 96000.0), kAudioHardwareIllegalOperationError);
}

}  // namespace
}  // namespace fadeloom
