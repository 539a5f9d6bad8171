// SPDX-License-Identifier: MIT
#include "app/linux/BusCallers.h"

#include "platform/linux/CallerSandbox.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace fadeloom {

BusCallers::BusCallers(const QDBusConnection& connection)
    : connection_(connection)
{
    watcher_.setConnection(connection_);
    watcher_.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    QObject::connect(
        &watcher_, &QDBusServiceWatcher::serviceUnregistered, &watcher_, [this](const QString& sender) {
            watcher_.removeWatchedService(sender);
            known_.remove(sender);
            gone_(sender);
        });
}

void BusCallers::with(const QString& sender, Task task)
{
    if (const auto found = known_.constFind(sender); found != known_.constEnd())
        return task(*found);
    const bool isAsked = waiting_.contains(sender);
    waiting_[sender].append(std::move(task));
    if (!isAsked)
        ask(sender);
}

void BusCallers::ask(const QString& sender)
{
    watcher_.addWatchedService(sender);
    const auto bus = QStringLiteral("org.freedesktop.DBus");
    auto question = QDBusMessage::createMethodCall(
        bus, QStringLiteral("/org/freedesktop/DBus"), bus, QStringLiteral("GetConnectionUnixProcessID"));
    question << sender;
    auto* const answer = new QDBusPendingCallWatcher(connection_.asyncCall(question), &watcher_);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &watcher_, [this, sender, answer] {
        const QDBusPendingReply<uint> process = *answer;
        answer->deleteLater();
        const bool isFree = process.isValid() && !isSandboxed(static_cast<pid_t>(process.value()));
        answered(sender, isFree ? Caller::trusted : Caller::sandboxed);
    });
}

void BusCallers::answered(const QString& sender, Caller caller)
{
    known_.insert(sender, caller);
    for (const auto& task : waiting_.take(sender))
        task(caller);
}

}  // namespace fadeloom
