// SPDX-License-Identifier: MIT
// Guarantees for the IO thread: rendering does not allocate, block or make system calls, and always sees a consistent
// set of settings.
#include "engine/Renderer.h"

#include "base/RealTime.h"
#include "tests/engine/CycleBuffers.h"
#include "tests/support/RealTimeGuard.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace fadeloom {
namespace {

TEST(RealTimeGuard, detectsForbiddenCalls)
{
    std::mutex mutex;
    const int before = realTimeViolations();
    {
        const RealTimeSection section;
        void* volatile memory = std::malloc(100);  // Volatile: a compiler may otherwise remove the pair.
        std::free(memory);
        const std::scoped_lock lock{mutex};
        EXPECT_EQ(write(-1, nullptr, 0), -1);
    }

    EXPECT_EQ(realTimeViolations() - before, isGuarding() ? 4 : 0) << lastRealTimeViolation();
}

TEST(RendererRealTime, renderingNeitherAllocatesNorWaitsNorCallsTheSystem)
{
    auto parameters = std::make_shared<TapParameters>();
    Renderer renderer(parameters, {.output = {3, 3}});
    parameters->setEQ(eqCoefficients(std::vector<float>(10, 3), 48000));
    parameters->values.eqEnabled = true;
    parameters->values.volume = 2;
    CycleBuffers input;
    CycleBuffers output;
    input.add(2, 8192, 0.7F);
    output.add(4, 8192);
    const int before = realTimeViolations();

    renderer.render({}, input.view(), output.view());
    renderer.render({}, {}, output.view());

    EXPECT_EQ(realTimeViolations() - before, 0);
}

TEST(RendererRealTime, seesWholeSetsOfSettingsWhileTheyAreWritten)
{
    auto parameters = std::make_shared<TapParameters>();
    parameters->values.eqEnabled = true;
    Renderer renderer(parameters, {});
    std::atomic<bool> isOver = false;
    std::atomic<int> oddSamples = 0;
    std::atomic<int> cycles = 0;

    // The first section boosts what the last one cuts, so a torn set would be audible.
    std::thread ioThread([&] {
        CycleBuffers input;
        CycleBuffers output;
        input.add(2, 16, 0.25F);
        output.add(2, 16);
        while (!isOver) {
            renderer.render({}, input.view(), output.view());
            for (const float sample : output.samples(0))
                oddSamples += sample == 0.25F ? 0 : 1;
            ++cycles;
        }
    });
    for (int change = 0; change < 20000 || cycles < 2000; ++change) {
        EQCoefficients sections{};
        sections.front().b0 = change % 2 == 0 ? 2 : 1;
        sections.back().b0 = 1 / sections.front().b0;
        parameters->setEQ(sections);
        EXPECT_LE(parameters->takePeak(), 0.25F);
    }
    isOver = true;
    ioThread.join();

    EXPECT_EQ(oddSamples, 0);
    EXPECT_TRUE(parameters->audioSeen);
}

}  // namespace
}  // namespace fadeloom
