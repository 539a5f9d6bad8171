// SPDX-License-Identifier: MIT
// Waits for somebody who shows status icons.
#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QTimer>

#include <functional>

namespace fadeloom {

/// Tells how icons are shown. The older way is a promise for good, to a bar that may know the newer one as well and only
/// starts later, as at every login: it is told of only when no host of the newer way has come in time. Thread: main.
class TrayHost final : public QObject {
    Q_OBJECT

public:
    enum class Kind {
        statusNotifier,  // The newer way, over the session bus.
        embedding,  // The older way, on X11.
        none,
    };
    static constexpr int patience = 5000;  // Milliseconds.

    /// Calls `found` once it is known how icons can be shown: when a host over the bus is there or comes, and at the end
    /// of the time with what there is then. After `embedding` and `none` it is called again should such a host come.
    explicit TrayHost(std::function<void(Kind)> found, int waitMilliseconds = patience,
        const QDBusConnection& bus = QDBusConnection::sessionBus());

private Q_SLOTS:
    void StatusNotifierHostRegistered() { hostCame(); }

private:
    void watcherCame();
    void hostCame();
    void timeIsOver();

    std::function<void(Kind)> found_;
    QDBusConnection bus_;
    bool hasHost_ = false;
    QDBusServiceWatcher watcher_;
    QTimer timer_;
};

}  // namespace fadeloom
