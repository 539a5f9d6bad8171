// SPDX-License-Identifier: MIT
// The mixer on the session bus: objects that other programs read, write and watch.
#pragma once

#include "app/ServedControl.h"
#include "app/linux/BusAnnouncer.h"
#include "app/linux/BusCallers.h"
#include "app/linux/BusInterface.h"
#include "app/linux/BusWrites.h"
#include "platform/linux/InstanceBus.h"

#include <QDBusMessage>
#include <QSet>

#include <optional>
#include <string>

namespace fadeloom {

/// Thread: main.
class MixerBus final : public InstanceTree {
public:
    /// All arguments must outlive this. `connection`: the one that owns the name.
    MixerBus(const QDBusConnection& connection, const ServedControl& control);
    MixerBus(const MixerBus&) = delete;
    MixerBus& operator=(const MixerBus&) = delete;

    [[nodiscard]] QString introspect(const QString& path) const override;
    /// Replies now or later. False for what Qt handles itself.
    bool handle(const QDBusMessage& message) override;

private:
    using Answer = std::expected<QVariantList, BusError>;

    [[nodiscard]] Answer answer(const QDBusMessage& message, Caller caller);
    [[nodiscard]] Answer property(const QDBusMessage& message, const BusObject& object, Caller caller);
    [[nodiscard]] Answer setProperty(const QDBusMessage& message, const BusObject& object, Caller caller);
    [[nodiscard]] Answer mixerMethod(const QDBusMessage& message, Caller caller);
    [[nodiscard]] Answer appMethod(const QDBusMessage& message, const std::string& id, Caller caller);
    [[nodiscard]] Answer run(const QStringList& words, Caller caller);
    [[nodiscard]] BusObjects objects() const;
    void subscribe(const QString& sender);
    void unsubscribe(const QString& sender);
    void sendLevels();

    QDBusConnection connection_;
    const ServedControl control_;
    const BusInterfaces interfaces_;
    BusCallers callers_;
    BusAnnouncer announcer_;
    QSet<QString> subscribers_;
    Subscription levelsWanted_;
    Subscription levels_;
};

}  // namespace fadeloom
