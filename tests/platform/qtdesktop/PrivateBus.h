// SPDX-License-Identifier: MIT
// A private message bus for a test.
#pragma once

#include <QCoreApplication>
#include <QDBusConnection>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <functional>
#include <stdexcept>

namespace fadeloom {

/// Processes events until the condition holds; false on timeout.
inline bool happensSoon(const std::function<bool()>& condition, int milliseconds = 5000)
{
    QElapsedTimer time;
    time.start();
    while (!condition()) {
        if (time.hasExpired(milliseconds))
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    return true;
}

/// Ends with this object, after disconnecting everybody. Needs a QCoreApplication.
class PrivateBus {
public:
    PrivateBus()
    {
        const auto address = QStringLiteral("unix:path=%1/bus").arg(folder_.path());
        daemon_.start(QStringLiteral("dbus-daemon"),
            {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
                QStringLiteral("--print-address"), QStringLiteral("--address=") + address});
        if (!daemon_.waitForReadyRead(5000))
            throw std::runtime_error("no message bus: " + daemon_.errorString().toStdString());
        address_ = address;
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;
    ~PrivateBus()
    {
        for (const auto& name : names_)
            QDBusConnection::disconnectFromBus(name);
        daemon_.kill();
        daemon_.waitForFinished();
    }

    /// Another client on the bus.
    QDBusConnection connect()
    {
        static int count = 0;
        names_ += QStringLiteral("private-%1").arg(++count);
        return QDBusConnection::connectToBus(address_, names_.back());
    }

private:
    QTemporaryDir folder_;
    QProcess daemon_;
    QString address_;
    QStringList names_;
};

}  // namespace fadeloom
