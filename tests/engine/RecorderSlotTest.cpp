// SPDX-License-Identifier: MIT
#include "engine/RecorderSlot.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>

namespace fadeloom {
namespace {

class CountingFile final : public AudioFile {
public:
    AudioStatus setClientFormat(const AudioStreamBasicDescription& /*format*/) override { return 0; }
    AudioStatus write(std::uint32_t frameCount, const float* /*samples*/) noexcept override
    {
        frames += frameCount;
        meanwhile();
        return 0;
    }
    AudioFileHealth health() const override { return {}; }

    std::uint64_t frames = 0;
    std::function<void()> meanwhile = [] { };
};

TEST(RecorderSlot, writesToTheFileThatIsInIt)
{
    CountingFile file;
    RecorderSlot slot;

    slot.write(1, nullptr);
    slot.set(&file);
    slot.write(2, nullptr);
    slot.set(nullptr);
    slot.write(4, nullptr);

    EXPECT_EQ(file.frames, 2U);
}

TEST(RecorderSlot, isInUseWhileACycleWrites)
{
    CountingFile file;
    RecorderSlot slot;
    slot.set(&file);
    bool wasInUse = false;
    file.meanwhile = [&] {
        slot.set(nullptr);
        wasInUse = slot.isInUse();
    };

    slot.write(1, nullptr);

    EXPECT_TRUE(wasInUse);
    EXPECT_FALSE(slot.isInUse());
}

// An IO thread writes all the time; every file is destroyed as soon as the slot says that it can be. The address and
// thread sanitizers see a write that comes later.
TEST(RecorderSlot, aFileThatIsNotInUseIsNeverReachedAgain)
{
    RecorderSlot slot;
    std::atomic<bool> isOver = false;
    const auto cycles = [&] {
        while (!isOver.load())
            slot.write(1, nullptr);
    };
    {
        const std::jthread thread(cycles);
        for (int i = 0; i < 2000; ++i) {
            auto file = std::make_unique<CountingFile>();
            slot.set(file.get());
            std::this_thread::yield();
            slot.set(nullptr);
            while (slot.isInUse())
                std::this_thread::yield();
            file->meanwhile = [] { ADD_FAILURE() << "reached after it was let go"; };
            file.reset();
        }
        isOver = true;
    }
}

}  // namespace
}  // namespace fadeloom
