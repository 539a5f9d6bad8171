// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/TrayHost.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QGuiApplication>
#include <QSystemTrayIcon>

#include <utility>

namespace fadeloom {
namespace {

const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");

bool canEmbed()
{
    return QGuiApplication::platformName() == QLatin1String("xcb")
        && QSystemTrayIcon::isSystemTrayAvailable();
}

}  // namespace

TrayHost::TrayHost(std::function<void(Kind)> found, int waitMilliseconds)
    : found_(std::move(found))
{
    auto bus = QDBusConnection::sessionBus();
    if (bus.isConnected()) {
        watcher_.setConnection(bus);
        watcher_.setWatchMode(QDBusServiceWatcher::WatchForRegistration);
        watcher_.addWatchedService(watcherName);
        QObject::connect(
            &watcher_, &QDBusServiceWatcher::serviceRegistered, &watcher_, [this] { hostCame(); });
        if (bus.interface()->isServiceRegistered(watcherName).value()) {
            // Later, so that whoever made this is done with it.
            QTimer::singleShot(0, &watcher_, [this] { hostCame(); });
            return;
        }
    }
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { timeIsOver(); });
    timer_.start(bus.isConnected() ? waitMilliseconds : 0);
}

void TrayHost::hostCame()
{
    timer_.stop();
    watcher_.setWatchedServices({});
    if (!std::exchange(isAnswered_, true))
        found_(Kind::statusNotifier);
}

void TrayHost::timeIsOver()
{
    if (isAnswered_)
        return;
    if (canEmbed()) {
        isAnswered_ = true;
        watcher_.setWatchedServices({});
        found_(Kind::embedding);
    } else {
        found_(Kind::none);  // A host that comes later is still told of.
    }
}

}  // namespace fadeloom
