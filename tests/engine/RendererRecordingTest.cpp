// SPDX-License-Identifier: MIT
// What a renderer writes to a recording: the audio as captured, every frame of it.
#include "engine/Renderer.h"

#include "engine/RecordingLanes.h"
#include "tests/engine/CycleBuffers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace fadeloom {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class RendererRecordingTest : public testing::Test {
protected:
    void startRecording() { parameters->recorder.set(lanes); }
    /// Everything since the beginning.
    const std::vector<float>& recorded()
    {
        lanes->drain([this](const CycleTime& cycle, std::span<const float> samples) {
            times.push_back(cycle);
            taken.insert(taken.end(), samples.begin(), samples.end());
        });
        return taken;
    }
    void render(Renderer& renderer, CycleBuffers& input, std::size_t outputFrames = 3)
    {
        CycleBuffers output;
        output.add(2, outputFrames);
        renderer.render(time, input.view(), output.view());
    }

    const std::shared_ptr<RecordingLanes> lanes = std::make_shared<RecordingLanes>(48000);
    const CycleTime time{.clock = 7, .frame = 512, .host = HostTime(99)};
    std::vector<CycleTime> times;
    std::vector<float> taken;
    std::shared_ptr<TapParameters> parameters = std::make_shared<TapParameters>();
    CycleBuffers stereo = std::move(CycleBuffers().add(2, {0.1F, 0.2F, 0.3F, 0.4F, 2.5F, -0.6F}));
};

TEST_F(RendererRecordingTest, aNewBlockHasNoRecorder)
{
    EXPECT_FALSE(parameters->recorder.isRecording());

    Renderer renderer(parameters, {});
    render(renderer, stereo);

    EXPECT_THAT(recorded(), IsEmpty());
}

TEST_F(RendererRecordingTest, writesWhatWasCapturedRegardlessOfTheOutput)
{
    parameters->values.muted = true;
    parameters->values.volume = 0.5F;
    parameters->values.duck = 0.2F;
    parameters->values.eqEnabled = true;
    parameters->values.preamp = 0.25F;
    parameters->setEQ(eqCoefficients(std::vector<float>(10, 12), 48000));
    startRecording();
    Renderer renderer(parameters, {});

    render(renderer, stereo);

    EXPECT_THAT(recorded(), ElementsAre(0.1F, 0.2F, 0.3F, 0.4F, 2.5F, -0.6F));
}

TEST_F(RendererRecordingTest, writesLeftAndRightOfASoundInTwoBuffers)
{
    startRecording();
    Renderer renderer(parameters, {.tapBufferCount = 2, .isTapInterleaved = false});
    CycleBuffers input;
    input.add(1, {1, 2, 3}).add(1, {-1, -2, -3});

    render(renderer, input);

    EXPECT_THAT(recorded(), ElementsAre(1, -1, 2, -2, 3, -3));
}

TEST_F(RendererRecordingTest, writesASingleChannelToBothSides)
{
    startRecording();
    Renderer renderer(parameters, {});
    CycleBuffers mono;
    mono.add(1, {0.5F, 0.25F, 0});

    render(renderer, mono);

    EXPECT_THAT(recorded(), ElementsAre(0.5F, 0.5F, 0.25F, 0.25F, 0, 0));
}

TEST_F(RendererRecordingTest, writesBothSidesAlsoForADeviceWithOneChannel)
{
    startRecording();
    Renderer renderer(parameters, {.output = {1, 1}});

    render(renderer, stereo);

    EXPECT_THAT(recorded(), ElementsAre(0.1F, 0.2F, 0.3F, 0.4F, 2.5F, -0.6F));
}

TEST_F(RendererRecordingTest, continuesAcrossCycles)
{
    startRecording();
    Renderer renderer(parameters, {});

    for (int cycle = 0; cycle < 4; ++cycle)
        render(renderer, stereo);

    EXPECT_EQ(recorded().size(), 4 * 6);
    EXPECT_THAT(times, ElementsAre(time, time, time, time));
}

TEST_F(RendererRecordingTest, atAnotherRateThanTheRecordingsWritesNothing)
{
    startRecording();
    Renderer renderer(parameters, {.sampleRate = 44100});

    render(renderer, stereo);

    EXPECT_THAT(recorded(), IsEmpty());
}

TEST_F(RendererRecordingTest, givesItsPlaceBackAtItsEnd)
{
    startRecording();

    for (int i = 0; i < 10; ++i) {
        Renderer renderer(parameters, {});
        render(renderer, stereo);
    }

    EXPECT_EQ(recorded().size(), 10U * 6);
    EXPECT_EQ(lanes->lostFrames(), 0U);
}

TEST_F(RendererRecordingTest, aCycleWithoutFramesWritesNothing)
{
    startRecording();
    Renderer renderer(parameters, {});
    CycleBuffers nothing;

    render(renderer, nothing);
    render(renderer, stereo, 0);

    EXPECT_THAT(recorded(), IsEmpty());
    EXPECT_THAT(times, IsEmpty());
}

TEST_F(RendererRecordingTest, aCycleOfOneFrameIsWritten)
{
    startRecording();
    Renderer renderer(parameters, {});

    render(renderer, stereo, 1);

    EXPECT_THAT(recorded(), ElementsAre(0.1F, 0.2F));
}

TEST_F(RendererRecordingTest, theLongestCycleIsWrittenCompletely)
{
    startRecording();
    Renderer renderer(parameters, {});
    CycleBuffers input;
    input.add(2, Renderer::maximumFrames, 0.125F);

    render(renderer, input, Renderer::maximumFrames);

    EXPECT_EQ(recorded().size(), 2 * Renderer::maximumFrames);
    EXPECT_THAT(recorded(), Each(0.125F));
}

TEST_F(RendererRecordingTest, aBusyLockKeepsNoSoundFromIt)
{
    startRecording();
    Renderer renderer(parameters, {});

    parameters->lock.lock();
    render(renderer, stereo);
    parameters->lock.unlock();

    EXPECT_EQ(recorded().size(), 6U);
}

TEST_F(RendererRecordingTest, aDetachedRecordingIsUnreachableHoweverLateTheNextCycleComes)
{
    startRecording();
    Renderer renderer(parameters, {});
    render(renderer, stereo);

    parameters->recorder.set(nullptr);
    ASSERT_TRUE(parameters->recorder.letGo());  // No cycle has run since.
    parameters->lock.lock();
    render(renderer, stereo);
    parameters->lock.unlock();

    EXPECT_EQ(recorded().size(), 6U);
}

}  // namespace
}  // namespace fadeloom
