// SPDX-License-Identifier: MIT
// Determines the access of callers on the session bus.
#pragma once

#include "commands/CommandInterpreter.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QList>
#include <QMap>
#include <QString>

#include <functional>

namespace fadeloom {

/// Thread: main.
class BusCallers {
public:
    using Task = std::function<void(Caller)>;

    explicit BusCallers(const QDBusConnection& connection);
    BusCallers(const BusCallers&) = delete;
    BusCallers& operator=(const BusCallers&) = delete;

    /// Runs the task once it is known who `sender`, a connection of the bus, is: immediately, or when the bus has
    /// replied. Tasks of one sender keep their order. A sender unknown to the bus counts as sandboxed.
    void with(const QString& sender, Task task);
    /// Called when a sender's connection has ended.
    void whenDisconnected(std::function<void(const QString& sender)> gone) { gone_ = std::move(gone); }

private:
    void ask(const QString& sender);
    void answered(const QString& sender, Caller caller);

    QDBusConnection connection_;
    std::function<void(const QString&)> gone_ = [](const QString&) { };
    QMap<QString, Caller> known_;
    QMap<QString, QList<Task>> waiting_;
    QDBusServiceWatcher watcher_;
};

}  // namespace fadeloom
