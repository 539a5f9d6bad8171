// SPDX-License-Identifier: MIT
#include "tests/macos/doubles/QtMainQueue.h"

#include "tests/macos/doubles/Dispatch.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QTimer>

#include <utility>

namespace doubles {
namespace {

using namespace std::chrono_literals;

void join()
{
    auto* const application = QCoreApplication::instance();
    const bool hasWindows = qobject_cast<QGuiApplication*>(application) != nullptr;
    if (hasWindows || qEnvironmentVariableIntValue("QT_EVENT_DISPATCHER_CORE_FOUNDATION") > 0) {
        auto* const turns = new QTimer(application);
        QObject::connect(turns, &QTimer::timeout, application, [] { advanceQueues(1ms); });
        turns->start(1ms);
    }
    QTimer::singleShot(0, application, [] {
        if (const auto runs = std::exchange(whenProgramRuns(), nullptr))
            runs();
    });
}

}  // namespace

std::function<void()>& whenProgramRuns()
{
    static std::function<void()> made;
    return made;
}

}  // namespace doubles

static void joinMainQueue()
{
    doubles::join();
}
Q_COREAPP_STARTUP_FUNCTION(joinMainQueue)
