// SPDX-License-Identifier: MIT
// Waits for a host of status icons.
#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QTimer>

#include <functional>

namespace fadeloom {

/// Determines how icons are shown. Choosing XEmbed is final for a bar that supports both protocols but starts
/// StatusNotifier support later, as at every login: so XEmbed is chosen only if no StatusNotifier host has appeared in
/// time. Thread: main.
class TrayHost final : public QObject {
    Q_OBJECT

public:
    enum class Kind {
        statusNotifier,  // On the session bus.
        embedding,  // XEmbed, on X11.
        none,
    };
    static constexpr int timeout = 5000;  // Milliseconds.

    /// Calls `found` once it is known how icons can be shown: when a StatusNotifier host exists or appears, or at the
    /// timeout with what exists then. After `embedding` and `none` it is called again if such a host appears later.
    explicit TrayHost(std::function<void(Kind)> found, int waitMilliseconds = timeout,
        const QDBusConnection& bus = QDBusConnection::sessionBus());

private Q_SLOTS:
    void StatusNotifierHostRegistered() { hostAppeared(); }

private:
    void watcherAppeared();
    void hostAppeared();
    void timedOut();

    std::function<void(Kind)> found_;
    QDBusConnection bus_;
    bool hasHost_ = false;
    QDBusServiceWatcher watcher_;
    QTimer timer_;
};

}  // namespace fadeloom
