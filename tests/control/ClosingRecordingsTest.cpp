// SPDX-License-Identifier: MIT
#include "control/ClosingRecordings.h"

#include "platform/simulated/SimulatedAudioFiles.h"
#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedMainLoop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

/// A file whose writing takes as long as a test likes: what happens meanwhile happens within `write`.
class SlowFile final : public AudioFile {
public:
    AudioStatus setClientFormat(const AudioStreamBasicDescription& /*format*/) override { return 0; }
    AudioStatus write(std::uint32_t /*frameCount*/, const float* /*samples*/) noexcept override
    {
        meanwhile();
        return 0;
    }
    AudioFileHealth health() const override { return {}; }

    std::function<void()> meanwhile;
};

class ClosingRecordingsTest : public testing::Test {
protected:
    std::unique_ptr<Recording> recording()
    {
        return *Recording::create(files, "/music/Player.wav", 48000, {});
    }

    SimulatedClock clock;
    SimulatedMainLoop loop{clock};
    SimulatedAudioFiles files;
    std::shared_ptr<TapParameters> parameters = std::make_shared<TapParameters>();
    SlowFile slow;
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

TEST_F(ClosingRecordingsTest, stayOpenWhileACycleIsWriting)
{
    parameters->recorder.set(&slow);
    slow.meanwhile = [this] {
        parameters->recorder.set(nullptr);
        closing.add("player", recording(), parameters);
        loop.advance(10s);
        closing.closeNow();
        EXPECT_THAT(closed, IsEmpty());
    };

    parameters->recorder.write(this, 0, nullptr);
    loop.advance(ClosingRecordings::delay);

    EXPECT_THAT(closed, ElementsAre("player"));
}

TEST_F(ClosingRecordingsTest, areClosedAtOnceAtTheEnd)
{
    closing.add("player", recording(), parameters);
    closing.add("chat", recording(), nullptr);

    closing.closeNow();
    loop.advance(1s);

    EXPECT_THAT(closed, ElementsAre("player", "chat"));
}

}  // namespace
}  // namespace fadeloom
