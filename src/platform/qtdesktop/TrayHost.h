// SPDX-License-Identifier: MIT
// Waits for somebody who shows status icons.
#pragma once

#include <QDBusServiceWatcher>
#include <QObject>
#include <QTimer>

#include <functional>

namespace fadeloom {

/// Qt chooses the way in which icons are shown with the first icon, for good: one that is made before the desktop's
/// panel has started, as at every login, would never be seen by a panel that knows only the newer way. So the first icon
/// waits for the panel. Thread: main.
class TrayHost {
public:
    enum class Kind {
        statusNotifier,  // The newer way, over the session bus.
        embedding,  // The older way, on X11.
        none,
    };
    static constexpr int patience = 5000;  // Milliseconds.

    /// Calls `found` once it is known how icons can be shown: at once where a host is there already, when one comes
    /// within the time, or at its end with what there is then. After `none` it is called again should a host come.
    TrayHost(std::function<void(Kind)> found, int waitMilliseconds = patience);
    TrayHost(const TrayHost&) = delete;
    TrayHost& operator=(const TrayHost&) = delete;

private:
    void hostCame();
    void timeIsOver();

    std::function<void(Kind)> found_;
    bool isAnswered_ = false;
    QDBusServiceWatcher watcher_;
    QTimer timer_;
};

}  // namespace fadeloom
