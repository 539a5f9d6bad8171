// SPDX-License-Identifier: MIT
#include "app/linux/BusAnnouncer.h"

#include "platform/MainLoop.h"

#include <QDBusMessage>

#include <utility>

namespace fadeloom {

BusAnnouncer::BusAnnouncer(const QDBusConnection& connection, MainLoop& mainLoop,
    const AudioController& controller, std::string version)
    : connection_(connection)
    , mainLoop_(mainLoop)
    , controller_(controller)
    , version_(std::move(version))
    , objects_(busObjects(controller, version_))
{
    const auto& state = controller_.state();
    const auto follow = [this](const auto& published) {
        subscriptions_.push_back(published.whenAssigned([this] { schedule(); }));
    };
    follow(state.apps);
    follow(state.devices);
    follow(state.defaultDeviceUID);
    follow(state.permission);
    follow(state.callApp);
    follow(state.missingOutput);
    follow(state.recordings);
    follow(state.settings);
    subscriptions_.push_back(state.error.whenAssigned([this] {
        if (const auto& error = *controller_.state().error)
            send(bus::root, bus::mixerInterface, QStringLiteral("Message"),
                {QString::fromStdString(englishText(*error))});
    }));
}

void BusAnnouncer::schedule()
{
    if (std::exchange(isCollecting_, true))
        return;
    timer_ = mainLoop_.after(collecting, [this] { announce(); });
}

void BusAnnouncer::announce()
{
    isCollecting_ = false;
    const auto now = busObjects(controller_, version_);
    const auto before = std::exchange(objects_, now);
    const auto manager = QStringLiteral("org.freedesktop.DBus.ObjectManager");
    for (const auto& [path, object] : before.asKeyValueRange()) {
        if (!now.contains(path))
            send(bus::root, manager, QStringLiteral("InterfacesRemoved"),
                {QVariant::fromValue(path), QStringList(object.keys())});
    }
    for (const auto& [path, object] : now.asKeyValueRange()) {
        if (const auto old = before.constFind(path); old != before.constEnd())
            announceChanges(path, *old, object);
        else
            send(bus::root, manager, QStringLiteral("InterfacesAdded"),
                {QVariant::fromValue(path), QVariant::fromValue(object)});
    }
}

void BusAnnouncer::announceChanges(const QDBusObjectPath& path, const BusObject& before, const BusObject& now)
{
    for (const auto& [interface, properties] : now.asKeyValueRange()) {
        const auto old = before.value(interface);
        QVariantMap changed;
        for (const auto& [name, value] : properties.asKeyValueRange()) {
            if (old.value(name) != value)
                changed.insert(name, value);
        }
        if (!changed.isEmpty())
            send(path.path(), QStringLiteral("org.freedesktop.DBus.Properties"),
                QStringLiteral("PropertiesChanged"), {interface, changed, QStringList()});
    }
}

void BusAnnouncer::send(
    const QString& path, const QString& interface, const QString& name, const QVariantList& arguments)
{
    auto signal = QDBusMessage::createSignal(path, interface, name);
    signal.setArguments(arguments);
    connection_.send(signal);
}

}  // namespace fadeloom
