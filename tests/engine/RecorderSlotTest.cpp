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

    slot.write(&slot, 1, nullptr);
    slot.set(&file);
    slot.write(&slot, 2, nullptr);
    slot.set(nullptr);
    slot.write(&slot, 4, nullptr);

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

    slot.write(&slot, 1, nullptr);

    EXPECT_TRUE(wasInUse);
    EXPECT_FALSE(slot.isInUse());
}

TEST(RecorderSlot, takesTheCyclesOfOneRendererAlone)
{
    CountingFile file;
    RecorderSlot slot;
    const int speakers = 0;
    const int headphones = 0;
    slot.set(&file);

    for (int cycle = 0; cycle < 10; ++cycle) {
        slot.write(&speakers, 480, nullptr);
        slot.write(&headphones, 480, nullptr);
    }
    EXPECT_EQ(file.frames, 4800U);

    slot.forgetWriter();
    slot.write(&headphones, 480, nullptr);
    slot.write(&speakers, 480, nullptr);
    EXPECT_EQ(file.frames, 5280U) << "whoever comes first after that";
}

// An IO thread writes all the time; every file is destroyed as soon as the slot says that it can be. The address and
// thread sanitizers see a write that comes later.
TEST(RecorderSlot, aFileThatIsNotInUseIsNeverReachedAgain)
{
    RecorderSlot slot;
    std::atomic<bool> isOver = false;
    const auto cycles = [&] {
        while (!isOver.load())
            slot.write(&slot, 1, nullptr);
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
