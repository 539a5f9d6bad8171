// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedBackgroundQueue.h"

#include "platform/simulated/SimulatedMainLoop.h"
#include "tests/platform/BackgroundQueueContract.h"

namespace fadeloom {
namespace {

class SimulatedQueueWorld final : public ContractQueueWorld {
public:
    BackgroundQueue& queue() override { return queue_; }
    bool waitUntil(const std::function<bool()>& condition) override
    {
        for (int i = 0; i < 100 && !condition(); ++i)
            loop_.advance(10ms);
        return condition();
    }
    void letPass(std::chrono::milliseconds duration) override { loop_.advance(duration); }

private:
    SimulatedClock clock_;
    SimulatedMainLoop loop_{clock_};
    SimulatedBackgroundQueue queue_{clock_};
};

std::unique_ptr<ContractQueueWorld> makeSimulatedQueueWorld()
{
    return std::make_unique<SimulatedQueueWorld>();
}

class SimulatedBackgroundQueueTest : public ::testing::Test {
protected:
    SimulatedClock clock;
    SimulatedMainLoop loop{clock};
    SimulatedBackgroundQueue queue{clock};
};

TEST_F(SimulatedBackgroundQueueTest, workOfTheQueueIsNotOnTheMainThread)
{
    bool wasMain = true;
    queue.submit(0ms, [&] { wasMain = loop.isCurrent(); });

    loop.advance(0ms);

    EXPECT_FALSE(wasMain);
    EXPECT_TRUE(loop.isCurrent());
}

TEST_F(SimulatedBackgroundQueueTest, countsPendingWork)
{
    const auto cancelled = queue.submit(5ms, [] { });
    queue.submit(10ms, [] { });
    queue.submit(500ms, [] { });
    EXPECT_EQ(queue.waitingCount(), 3U);

    cancelled->cancel();
    loop.advance(20ms);

    EXPECT_EQ(queue.waitingCount(), 1U);
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Simulated, BackgroundQueueContract, ::testing::Values(&makeSimulatedQueueWorld));

}  // namespace fadeloom
