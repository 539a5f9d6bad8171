// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/TrayHost.h"

#include "tests/platform/qtdesktop/OffscreenApplication.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

#include <vector>

namespace fadeloom {
namespace {

// Without a session bus, and without X11: there is nobody. The session with a bus is tested with a real one.
TEST(TrayHost, saysWhenThereIsNobody)
{
    const auto bus = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    {
        const OffscreenApplication application;
        std::vector<TrayHost::Kind> found;
        const TrayHost host([&](TrayHost::Kind kind) { found.push_back(kind); }, 50);
        QElapsedTimer time;
        time.start();

        while (found.empty() && !time.hasExpired(5000))
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);

        EXPECT_EQ(found, std::vector{TrayHost::Kind::none});
    }
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus);
}

}  // namespace
}  // namespace fadeloom
