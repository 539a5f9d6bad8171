// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/StatusNotifierItem.h"

#include "platform/qtdesktop/StatusNotifierNames.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

#include <cstdlib>
#include <utility>

namespace fadeloom {
namespace {

const QString itemPath = QStringLiteral("/StatusNotifierItem");
const QString menuObject = QStringLiteral("/MenuBar");

// A sandbox may not allow owning a name; bars also accept a connection's unique name.
QString ownService(QDBusConnection& bus)
{
    static int count = 0;
    const auto name = QStringLiteral("org.kde.StatusNotifierItem-%1-%2")
                          .arg(QCoreApplication::applicationPid())
                          .arg(++count);
    return bus.registerService(name) ? name : bus.baseService();
}

}  // namespace

StatusNotifierItem::StatusNotifierItem(const QDBusConnection& bus, const QString& title, Picture picture)
    : bus_(bus)
    , title_(title)
    , watcher_(watcherName, bus, QDBusServiceWatcher::WatchForRegistration)
{
    registerBusIconTypes();
    setPicture(std::move(picture));
    constexpr auto all = QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals
        | QDBusConnection::ExportAllProperties;
    bus_.registerObject(menuObject, &menu_, all);
    bus_.registerObject(itemPath, this, all);
    service_ = ownService(bus_);
    connect(&watcher_, &QDBusServiceWatcher::serviceRegistered, this, [this] { announce(); });
    if (bus_.interface()->isServiceRegistered(watcherName).value())
        announce();
}

StatusNotifierItem::~StatusNotifierItem()
{
    bus_.unregisterService(service_);  // Tells the bars that the icon is gone.
    bus_.unregisterObject(itemPath);
    bus_.unregisterObject(menuObject);
}

QDBusObjectPath StatusNotifierItem::menuPath() const
{
    return QDBusObjectPath(menuObject);
}

void StatusNotifierItem::announce()
{
    auto call = QDBusMessage::createMethodCall(
        watcherName, watcherPath, watcherName, QStringLiteral("RegisterStatusNotifierItem"));
    call << service_;
    bus_.send(call);
}

void StatusNotifierItem::setPicture(Picture picture)
{
    picture_ = std::move(picture);
    pixmaps_ = busPixmaps(picture_.icon);
    Q_EMIT NewIcon();
}

void StatusNotifierItem::setDescription(const QString& text)
{
    if (text == description_)
        return;
    description_ = text;
    Q_EMIT NewToolTip();
}

StatusNotifierItem::Click StatusNotifierItem::clickAt(int x, int y)
{
    return {{x, y}, std::exchange(token_, {})};
}

void StatusNotifierItem::Activate(int x, int y)
{
    clicked_(clickAt(x, y));
}

void StatusNotifierItem::SecondaryActivate(int x, int y)
{
    middleClicked_(clickAt(x, y));
}

// Plasma sends eighths of a degree, like wheels, positive upwards; a touchpad splits a notch into many events. wlroots
// bars send one or two per notch, positive downwards.
void StatusNotifierItem::Scroll(int delta, const QString& orientation)
{
    constexpr int notch = 120;
    constexpr int fewNotches = 8;
    if (delta == 0 || orientation.compare(QLatin1String("horizontal"), Qt::CaseInsensitive) == 0)
        return;
    if (std::abs(delta) < fewNotches)
        return scrolled_(delta > 0 ? -1 : 1);
    scrolledAngle_ += delta;
    if (const int notches = scrolledAngle_ / notch; notches != 0) {
        scrolledAngle_ -= notches * notch;
        scrolled_(notches);
    }
}

void StatusNotifierItem::ContextMenu(int x, int y)
{
    menuWanted_(clickAt(x, y));
}

}  // namespace fadeloom
