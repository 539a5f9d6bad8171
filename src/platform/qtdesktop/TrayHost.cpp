// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/TrayHost.h"

#include "platform/qtdesktop/StatusNotifierNames.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QSystemTrayIcon>

#include <utility>

namespace fadeloom {
namespace {

bool canEmbed()
{
    return QGuiApplication::platformName() == QLatin1String("xcb")
        && QSystemTrayIcon::isSystemTrayAvailable();
}

}  // namespace

TrayHost::TrayHost(std::function<void(Kind)> found, int waitMilliseconds, const QDBusConnection& bus)
    : found_(std::move(found))
    , bus_(bus)
{
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, [this] { timedOut(); });
    timer_.start(bus_.isConnected() ? waitMilliseconds : 0);
    if (!bus_.isConnected())
        return;
    watcher_.setConnection(bus_);
    watcher_.setWatchMode(QDBusServiceWatcher::WatchForRegistration);
    watcher_.addWatchedService(watcherName);
    connect(&watcher_, &QDBusServiceWatcher::serviceRegistered, this, [this] { watcherAppeared(); });
    bus_.connect(watcherName, watcherPath, watcherName, QStringLiteral("StatusNotifierHostRegistered"), this,
        SLOT(StatusNotifierHostRegistered()));
    if (bus_.interface()->isServiceRegistered(watcherName).value())
        watcherAppeared();
}

// A watcher maintains the list of icons, but there may be no host to show them.
void TrayHost::watcherAppeared()
{
    auto question = QDBusMessage::createMethodCall(
        watcherName, watcherPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << watcherName << QStringLiteral("IsStatusNotifierHostRegistered");
    auto* const answer = new QDBusPendingCallWatcher(bus_.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        answer->deleteLater();
        // A watcher without this property is its own only host.
        if (reply.isError() || reply.value().variant().toBool())
            hostAppeared();
    });
}

void TrayHost::hostAppeared()
{
    timer_.stop();
    if (!std::exchange(hasHost_, true))
        found_(Kind::statusNotifier);
}

void TrayHost::timedOut()
{
    found_(canEmbed() ? Kind::embedding : Kind::none);
}

}  // namespace fadeloom
