// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedMainLoop.h"
#include "tests/platform/MainLoopContract.h"

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SimulatedLoopWorld final : public ContractLoopWorld {
public:
    MainLoop& loop() override { return loop_; }
    void runFor(std::chrono::milliseconds duration) override { loop_.advance(duration); }

private:
    SimulatedClock clock_;
    SimulatedMainLoop loop_{clock_};
};

std::unique_ptr<ContractLoopWorld> makeSimulatedLoopWorld()
{
    return std::make_unique<SimulatedLoopWorld>();
}

class SimulatedMainLoopTest : public ::testing::Test {
protected:
    SimulatedClock clock;
    SimulatedMainLoop loop{clock};
    std::vector<int> order;
};

TEST_F(SimulatedMainLoopTest, timeIsFrozenUntilItIsAdvanced)
{
    const auto timer = loop.after(1ms, [this] { order.push_back(1); });

    std::this_thread::sleep_for(5ms);
    loop.runPosted();

    EXPECT_THAT(order, IsEmpty());
    EXPECT_EQ(clock.now(), 0ns);
}

TEST_F(SimulatedMainLoopTest, eachTimerSeesItsOwnTime)
{
    std::vector<SimulatedClock::Duration> moments;
    const auto timer = loop.every(5s, [&] { moments.push_back(clock.now()); });

    loop.advance(16s);

    EXPECT_THAT(moments, ElementsAre(5s, 10s, 15s));
    EXPECT_EQ(clock.now(), 16s);
}

TEST_F(SimulatedMainLoopTest, whatATimerPostsRunsBeforeTheNextTimer)
{
    const auto first = loop.after(1ms, [this] { loop.post([this] { order.push_back(1); }); });
    const auto second = loop.after(2ms, [this] { order.push_back(2); });

    loop.advance(10ms);

    EXPECT_THAT(order, ElementsAre(1, 2));
}

TEST_F(SimulatedMainLoopTest, aTurnRunsOnlyWhatWasPostedBefore)
{
    loop.post([this] {
        order.push_back(1);
        loop.post([this] { order.push_back(2); });
    });

    loop.runTurn();

    EXPECT_THAT(order, ElementsAre(1));
}

TEST_F(SimulatedMainLoopTest, aThreadThatPlaysAnotherOneIsNotCurrent)
{
    const SimulatedMainLoop::OtherThread ioThread;

    EXPECT_FALSE(loop.isCurrent());
    EXPECT_DEATH(loop.requireCurrent(), "Incorrect actor executor assumption");
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Simulated, MainLoopContract, ::testing::Values(&makeSimulatedLoopWorld));

}  // namespace fadeloom
