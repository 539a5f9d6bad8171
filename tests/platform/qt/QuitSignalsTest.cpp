// SPDX-License-Identifier: MIT
#include "platform/qt/QuitSignals.h"
#include "platform/qt/QtMainLoop.h"

#include <QCoreApplication>
#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;

class QuitSignalsTest : public ::testing::TestWithParam<int> {
protected:
    int argumentCount = 1;
    char name[5] = "test";
    char* arguments[2] = {name, nullptr};
    QCoreApplication application{argumentCount, arguments};
    QtMainLoop loop;
};

TEST_P(QuitSignalsTest, aSignalIsAskedOnceOnTheMainLoop)
{
    int asked = 0;
    const QuitSignals signals{[&] {
        ++asked;
        EXPECT_TRUE(loop.isCurrent());
        loop.quit(7);
    }};
    const auto giveUp = loop.after(5s, [this] { loop.quit(1); });

    const auto send = loop.after(1ms, [] { kill(getpid(), GetParam()); });

    EXPECT_EQ(loop.run(), 7);
    EXPECT_EQ(asked, 1);
}

TEST_P(QuitSignalsTest, aSecondSignalEndsTheProcess)
{
    const auto signalTwice = [] {
        const QuitSignals signals{[] { }};
        raise(GetParam());
        raise(GetParam());
    };

    EXPECT_EXIT(signalTwice(), ::testing::KilledBySignal(GetParam()), "");
}

TEST_P(QuitSignalsTest, thePreviousActionIsRestored)
{
    std::signal(GetParam(), SIG_IGN);

    std::make_unique<QuitSignals>([] { }).reset();

    EXPECT_EQ(std::signal(GetParam(), SIG_DFL), SIG_IGN);
}

TEST_P(QuitSignalsTest, theCallMayDestroyIt)
{
    std::unique_ptr<QuitSignals> signals;
    signals = std::make_unique<QuitSignals>([&] {
        signals.reset();
        loop.quit(7);
    });
    const auto giveUp = loop.after(5s, [this] { loop.quit(1); });

    raise(GetParam());

    EXPECT_EQ(loop.run(), 7);
}

INSTANTIATE_TEST_SUITE_P(Each, QuitSignalsTest, ::testing::Values(SIGINT, SIGTERM, SIGHUP));

}  // namespace
}  // namespace fadeloom
