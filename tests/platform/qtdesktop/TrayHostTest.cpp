// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/TrayHost.h"

#include "tests/platform/qtdesktop/BarOnBus.h"
#include "tests/platform/qtdesktop/OffscreenApplication.h"
#include "tests/platform/qtdesktop/PrivateBus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace fadeloom {
namespace {

using testing::ElementsAre;
using Kind = TrayHost::Kind;

constexpr int shortWait = 50;

class TrayHostTest : public testing::Test {
protected:
    TrayHost::Kind waitForAnswer(std::size_t count = 1)
    {
        EXPECT_TRUE(happensSoon([&] { return found.size() >= count; }));
        return found.empty() ? Kind::embedding : found.back();
    }
    auto listener()
    {
        return [this](Kind kind) { found.push_back(kind); };
    }

    OffscreenApplication application;
    PrivateBus bus;
    QDBusConnection ours = bus.connect();
    QDBusConnection theirs = bus.connect();
    std::vector<Kind> found;
};

TEST_F(TrayHostTest, isThereAlready)
{
    const BarOnBus bar(theirs);

    const TrayHost host(listener(), TrayHost::timeout, ours);

    EXPECT_EQ(waitForAnswer(), Kind::statusNotifier);
}

TEST_F(TrayHostTest, comesWithinTheTime)
{
    const TrayHost host(listener(), TrayHost::timeout, ours);
    QCoreApplication::processEvents();
    ASSERT_TRUE(found.empty());

    const BarOnBus bar(theirs);

    EXPECT_EQ(waitForAnswer(), Kind::statusNotifier);
}

TEST_F(TrayHostTest, comesAfterTheTime)
{
    const TrayHost host(listener(), shortWait, ours);
    ASSERT_EQ(waitForAnswer(), Kind::none);

    const BarOnBus bar(theirs);

    EXPECT_EQ(waitForAnswer(2), Kind::statusNotifier);
}

TEST_F(TrayHostTest, isNotTheWatcherAlone)
{
    BarOnBus bar(theirs, BarOnBus::Host::absent);
    const TrayHost host(listener(), shortWait, ours);
    ASSERT_EQ(waitForAnswer(), Kind::none);

    bar.bringHost();

    EXPECT_EQ(waitForAnswer(2), Kind::statusNotifier);
}

TEST_F(TrayHostTest, isReportedOnce)
{
    const TrayHost host(listener(), shortWait, ours);
    {
        const BarOnBus bar(theirs);
        waitForAnswer();
    }

    const BarOnBus again(theirs);
    happensSoon([&] { return found.size() > 1; }, 300);

    EXPECT_THAT(found, ElementsAre(Kind::statusNotifier));
}

TEST_F(TrayHostTest, reportsAMissingBus)
{
    const TrayHost host(listener(), TrayHost::timeout, QDBusConnection(QStringLiteral("nobody")));

    EXPECT_EQ(waitForAnswer(), Kind::none);
}

}  // namespace
}  // namespace fadeloom
