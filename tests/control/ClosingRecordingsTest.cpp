// SPDX-License-Identifier: MIT
#include "control/ClosingRecordings.h"

#include "platform/simulated/SimulatedAudioFiles.h"
#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedMainLoop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <thread>
#include <vector>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class ClosingRecordingsTest : public testing::Test {
protected:
    std::unique_ptr<Recording> recording()
    {
        return *Recording::create(files, clocks, "/music/Player.wav", 48000, {});
    }

    SimulatedClock clock;
    SimulatedMainLoop loop{clock};
    SimulatedAudioFiles files;
    CycleClocks clocks;
    std::shared_ptr<TapParameters> parameters = std::make_shared<TapParameters>();
    std::vector<std::string> closed;
    ClosingRecordings closing{loop, [this](const std::string& id, Recording& ended) {
                                  closed.push_back(id);
                                  ended.finish();
                              }};
};

TEST_F(ClosingRecordingsTest, areClosedAfterTheDelay)
{
    closing.add("player", recording(), parameters);

    loop.advance(ClosingRecordings::delay - 1ms);
    EXPECT_THAT(closed, IsEmpty());
    loop.advance(1ms);

    EXPECT_THAT(closed, ElementsAre("player"));
    EXPECT_EQ(files.openCount(), 0U);
}

// A thread writes cycles continuously, so that every query of the main thread may hit one in progress.
TEST_F(ClosingRecordingsTest, areClosedOnceNoCycleReachesThem)
{
    std::atomic<bool> isOver = false;
    const std::array<float, 960> samples{};
    const std::jthread io([&] {
        while (!isOver)
            parameters->recorder.write(this, 48000, {}, samples);
    });
    for (int i = 0; i < 50; ++i) {
        auto next = recording();
        const std::weak_ptr<RecordingLanes> lanes = next->lanes();
        parameters->recorder.set(next->lanes());
        std::this_thread::yield();
        parameters->recorder.set(nullptr);
        closing.add("player", std::move(next), parameters);
        while (files.openCount() > 0)
            loop.advance(ClosingRecordings::delay);
        EXPECT_TRUE(lanes.expired());
    }
    isOver = true;

    EXPECT_EQ(closed.size(), 50U);
}

TEST_F(ClosingRecordingsTest, areClosedImmediatelyAtTheEnd)
{
    closing.add("player", recording(), parameters);
    closing.add("chat", recording(), nullptr);

    closing.closeNow();
    loop.advance(1s);

    EXPECT_THAT(closed, ElementsAre("player", "chat"));
}

}  // namespace
}  // namespace fadeloom
