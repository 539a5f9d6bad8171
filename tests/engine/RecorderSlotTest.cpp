// SPDX-License-Identifier: MIT
#include "engine/RecorderSlot.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <memory>
#include <thread>

namespace fadeloom {
namespace {

constexpr double slotRate = 8000;
constexpr std::array<float, 2> oneFrame{0.5F, -0.5F};

std::size_t framesIn(RecordingLanes& lanes)
{
    std::size_t frames = 0;
    lanes.drain([&](const CycleTime&, std::span<const float> samples) { frames += samples.size() / 2; });
    return frames;
}

TEST(RecorderSlot, writesToTheRecordingThatIsInIt)
{
    const auto lanes = std::make_shared<RecordingLanes>(slotRate);
    RecorderSlot slot;
    EXPECT_FALSE(slot.isRecording());

    slot.write(&slot, slotRate, {}, oneFrame);
    slot.set(lanes);
    EXPECT_TRUE(slot.isRecording());
    slot.write(&slot, slotRate, {}, oneFrame);
    slot.set(nullptr);
    slot.write(&slot, slotRate, {}, oneFrame);

    EXPECT_EQ(framesIn(*lanes), 1U);
}

TEST(RecorderSlot, keepsARecordingUntilItIsDetachedAndReleased)
{
    auto lanes = std::make_shared<RecordingLanes>(slotRate);
    const std::weak_ptr<RecordingLanes> weakly = lanes;
    RecorderSlot slot;
    slot.set(std::move(lanes));

    EXPECT_TRUE(slot.letGo());
    EXPECT_FALSE(weakly.expired()) << "it still goes on";
    slot.set(nullptr);
    EXPECT_FALSE(weakly.expired());
    EXPECT_TRUE(slot.letGo());

    EXPECT_TRUE(weakly.expired());
}

TEST(RecorderSlot, aDestroyedRendererFreesItsLane)
{
    const auto lanes = std::make_shared<RecordingLanes>(slotRate);
    RecorderSlot slot;
    slot.set(lanes);
    const std::array<char, 10> renderers{};

    for (const auto& renderer : renderers) {
        slot.write(&renderer, slotRate, {}, oneFrame);
        slot.release(&renderer);
    }

    EXPECT_EQ(framesIn(*lanes), renderers.size());
    EXPECT_EQ(lanes->lostFrames(), 0U);
}

// An IO thread writes continuously; every recording is destroyed as soon as the slot has released it. The address and
// thread sanitizers would detect a later write.
TEST(RecorderSlot, aReleasedRecordingIsNeverReachedAgain)
{
    RecorderSlot slot;
    std::atomic<bool> isOver = false;
    const auto cycles = [&] {
        while (!isOver.load())
            slot.write(&slot, 100, {}, oneFrame);
    };
    const std::jthread thread(cycles);
    for (int i = 0; i < 300; ++i) {
        auto lanes = std::make_shared<RecordingLanes>(100);
        const std::weak_ptr<RecordingLanes> weakly = lanes;
        slot.set(std::move(lanes));
        std::this_thread::yield();
        slot.set(nullptr);
        while (!slot.letGo())
            std::this_thread::yield();
        EXPECT_TRUE(weakly.expired());
    }
    isOver = true;
}

}  // namespace
}  // namespace fadeloom
