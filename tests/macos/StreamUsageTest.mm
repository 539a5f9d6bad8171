// SPDX-License-Identifier: MIT
#include "platform/macos/StreamUsage.h"

#include "platform/macos/HAL.h"
#include "tests/macos/PropertyTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <span>

namespace fadeloom {
namespace {

constexpr AudioObjectID aggregate = 50;
constexpr auto input = kAudioObjectPropertyScopeInput;
constexpr auto usageOf = HAL::address(kAudioDevicePropertyIOProcStreamUsage, input);

// The bytes of a record: procedure, count, then the flags.
std::vector<std::byte> recordOf(std::uint32_t count, const std::vector<std::uint32_t>& flags)
{
    std::vector<std::byte> bytes(12 + flags.size() * 4);
    std::memcpy(bytes.data() + 8, &count, sizeof(count));
    std::ranges::copy(std::as_bytes(std::span(flags)), bytes.begin() + 12);
    return bytes;
}

class StreamUsageTest : public testing::Test {
protected:
    std::optional<StreamUsage> read() { return StreamUsage::read(aggregate, procedureID(), input); }

    AudioDeviceIOProcID procedureID() { return reinterpret_cast<AudioDeviceIOProcID>(&procedure); }

    int procedure = 0;  // Its address is used as an IO procedure.
    PropertyTable table;
};

TEST_F(StreamUsageTest, reportsWhichStreamsAreEnabled)
{
    table.setBytes(aggregate, usageOf, recordOf(3, {1, 0, 1}));

    const auto usage = read();

    ASSERT_TRUE(usage);
    EXPECT_EQ(usage->streamCount(), 3U);
    EXPECT_TRUE(usage->isOn(0));
    EXPECT_FALSE(usage->isOn(1));
    EXPECT_TRUE(usage->isOn(2));
}

TEST_F(StreamUsageTest, isAskedForOneProcedure)
{
    table.setBytes(aggregate, usageOf, recordOf(1, {1}));
    const void* asked = nullptr;
    table.beforeRead = [&](auto bytes) { std::memcpy(&asked, bytes.data(), sizeof(asked)); };

    (void)read();

    EXPECT_EQ(asked, &procedure);
}

TEST_F(StreamUsageTest, disablesStreamsAndKeepsTheRestOfTheRecord)
{
    table.setBytes(aggregate, usageOf, recordOf(2, {1, 1, 77}));  // One flag more than streams, like padding.
    auto usage = read();
    ASSERT_TRUE(usage);

    usage->switchOff(0);

    EXPECT_EQ(usage->write(aggregate, input), kAudioHardwareNoError);
    EXPECT_EQ(table.bytes(aggregate, usageOf), recordOf(2, {0, 1, 77}));
}

TEST_F(StreamUsageTest, refusedWriteGivesItsStatus)
{
    table.setBytes(aggregate, usageOf, recordOf(2, {1, 1}));
    auto usage = read();
    ASSERT_TRUE(usage);
    table.writeError = kAudioHardwareIllegalOperationError;

    EXPECT_EQ(usage->write(aggregate, input), kAudioHardwareIllegalOperationError);
}

TEST_F(StreamUsageTest, isAbsentWhenItCannotBeRead)
{
    EXPECT_FALSE(read());

    table.setBytes(aggregate, usageOf, recordOf(1, {1}));
    table.readError = kAudioHardwareUnspecifiedError;
    EXPECT_FALSE(read());
}

TEST_F(StreamUsageTest, recordTooShortForItsHeadIsRefused)
{
    table.setBytes(aggregate, usageOf, recordOf(0, {}));
    EXPECT_FALSE(read());
}

TEST_F(StreamUsageTest, recordThatNamesMoreStreamsThanItHoldsIsRefused)
{
    table.setBytes(aggregate, usageOf, recordOf(3, {1, 1}));
    EXPECT_FALSE(read());

    table.setBytes(aggregate, usageOf, recordOf(0xFFFFFFFF, {1, 1}));
    EXPECT_FALSE(read());
}

TEST_F(StreamUsageTest, recordThatShrinksWhileItIsReadIsRefused)
{
    table.setBytes(aggregate, usageOf, recordOf(2, {1, 1}));
    table.beforeRead = [&](auto) { table.setBytes(aggregate, usageOf, recordOf(2, {1})); };

    EXPECT_FALSE(read());
}

}  // namespace
}  // namespace fadeloom
