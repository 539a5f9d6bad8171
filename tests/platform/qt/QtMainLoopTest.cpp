// SPDX-License-Identifier: MIT
#include "platform/qt/QtMainLoop.h"
#include "tests/platform/MainLoopContract.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

namespace fadeloom {
namespace {

class QtLoopWorld final : public ContractLoopWorld {
public:
    MainLoop& loop() override { return loop_; }
    void runFor(std::chrono::milliseconds duration) override
    {
        const auto end = loop_.after(duration, [this] { loop_.quit(); });
        loop_.run();
    }

private:
    int argumentCount_ = 1;
    char name_[5] = "test";
    char* arguments_[2] = {name_, nullptr};
    QCoreApplication application_{argumentCount_, arguments_};
    QtMainLoop loop_;
};

std::unique_ptr<ContractLoopWorld> makeQtLoopWorld()
{
    return std::make_unique<QtLoopWorld>();
}

class QtMainLoopTest : public ::testing::Test {
protected:
    int argumentCount = 1;
    char name[5] = "test";
    char* arguments[2] = {name, nullptr};
    QCoreApplication application{argumentCount, arguments};
    QtMainLoop loop;
};

TEST_F(QtMainLoopTest, quitEndsRunWithItsExitCode)
{
    loop.quit(3);

    EXPECT_EQ(loop.run(), 3);
}

TEST_F(QtMainLoopTest, quitFromAnotherThreadEndsRun)
{
    std::thread other{[this] { loop.quit(4); }};

    EXPECT_EQ(loop.run(), 4);
    other.join();
}

TEST_F(QtMainLoopTest, aTaskThatPostsItselfDoesNotStarveTimers)
{
    std::function<void()> again = [&] { loop.post(again); };
    loop.post(again);
    const auto end = loop.after(std::chrono::milliseconds{5}, [this] { loop.quit(5); });

    EXPECT_EQ(loop.run(), 5);
}

TEST_F(QtMainLoopTest, requireCurrentStopsTheProcessElsewhere)
{
    EXPECT_DEATH(
        std::thread{[this] { loop.requireCurrent(); }}.join(), "Incorrect actor executor assumption");
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Qt, MainLoopContract, ::testing::Values(&makeQtLoopWorld));

}  // namespace fadeloom
