// SPDX-License-Identifier: MIT
// Signals changes on the session bus: Qt emits no PropertiesChanged itself.
#pragma once

#include "app/linux/BusObjects.h"
#include "base/Subscription.h"

#include <QDBusConnection>

#include <chrono>
#include <vector>

namespace fadeloom {

class MainLoop;

/// Thread: main.
class BusAnnouncer {
public:
    /// How long changes are coalesced: dragging a slider gives one signal per interval.
    static constexpr std::chrono::milliseconds collecting{20};

    /// All arguments must outlive this.
    BusAnnouncer(const QDBusConnection& connection, MainLoop& mainLoop, const AudioController& controller,
        std::string version);
    BusAnnouncer(const BusAnnouncer&) = delete;
    BusAnnouncer& operator=(const BusAnnouncer&) = delete;

private:
    void schedule();
    void announce();
    void announceChanges(const QDBusObjectPath& path, const BusObject& before, const BusObject& now);
    void send(
        const QString& path, const QString& interface, const QString& name, const QVariantList& arguments);

    QDBusConnection connection_;
    MainLoop& mainLoop_;
    const AudioController& controller_;
    const std::string version_;
    BusObjects objects_;  // As last signalled.
    bool isCollecting_ = false;
    Subscription timer_;
    std::vector<Subscription> subscriptions_;
};

}  // namespace fadeloom
