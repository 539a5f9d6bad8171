// SPDX-License-Identifier: MIT
// A fake desktop bar on D-Bus: it maintains the list of icons and shows them.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QStringList>

namespace fadeloom {

/// Appears and disappears with the object.
class BarOnBus : public QDBusVirtualObject {
public:
    enum class Host { present, absent };

    explicit BarOnBus(const QDBusConnection& bus, Host host = Host::present)
        : bus_(bus)
        , host_(host)
    {
        bus_.registerVirtualObject(path(), this);
        bus_.registerService(name());
    }
    BarOnBus(const BarOnBus&) = delete;
    BarOnBus& operator=(const BarOnBus&) = delete;
    ~BarOnBus() override
    {
        bus_.unregisterService(name());
        bus_.unregisterObject(path());
    }

    [[nodiscard]] const QStringList& icons() const { return icons_; }

    /// Registers as a host as well.
    void bringHost()
    {
        host_ = Host::present;
        bus_.send(QDBusMessage::createSignal(path(), name(), QStringLiteral("StatusNotifierHostRegistered")));
    }

    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        if (message.member() == QLatin1String("RegisterStatusNotifierItem")) {
            icons_ += message.arguments().constFirst().toString();
            return connection.send(message.createReply());
        }
        if (message.member() == QLatin1String("Get"))
            return connection.send(
                message.createReply(QVariant::fromValue(QDBusVariant(host_ == Host::present))));
        return false;
    }

private:
    static QString name() { return QStringLiteral("org.kde.StatusNotifierWatcher"); }
    static QString path() { return QStringLiteral("/StatusNotifierWatcher"); }

    QDBusConnection bus_;
    Host host_;
    QStringList icons_;
};

}  // namespace fadeloom
