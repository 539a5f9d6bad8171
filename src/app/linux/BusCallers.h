// SPDX-License-Identifier: MIT
// Who asks over the session bus, and for whom they count.
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

    /// Does the task once it is known who `sender` is, a connection of the bus: at once, or when the bus has answered.
    /// Tasks of one sender keep their order. A sender whom the bus does not know counts as sandboxed.
    void with(const QString& sender, Task task);
    /// Called when a sender's connection has ended.
    void whenGone(std::function<void(const QString& sender)> gone) { gone_ = std::move(gone); }

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
