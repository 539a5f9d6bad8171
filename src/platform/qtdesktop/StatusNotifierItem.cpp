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

// A sandbox may allow no name of its own; bars also take the one that every connection has.
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
    bus_.unregisterService(service_);  // The bars take it for the end of the icon.
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

// Plasma counts in eighths of a degree, as wheels do, up being positive; a touchpad sends a notch in many parts. The bars
// of wlroots send one or two for each notch, down being positive.
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
