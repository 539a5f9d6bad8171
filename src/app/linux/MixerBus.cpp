// SPDX-License-Identifier: MIT
#include "app/linux/MixerBus.h"

#include "app/linux/BusObjects.h"
#include "commands/AppLookup.h"
#include "commands/CommandInterpreter.h"
#include "control/AppSettings.h"

#include <QDBusArgument>

#include <algorithm>
#include <array>

namespace fadeloom {
namespace {

const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");
const QString managerInterface = QStringLiteral("org.freedesktop.DBus.ObjectManager");

// Qt adds the other standard interfaces.
constexpr const char* managerXml = R"(<interface name="org.freedesktop.DBus.ObjectManager">
<method name="GetManagedObjects"><arg name="objects" type="a{oa{sa{sv}}}" direction="out"/></method>
<signal name="InterfacesAdded"><arg name="object" type="o"/><arg name="interfaces" type="a{sa{sv}}"/></signal>
<signal name="InterfacesRemoved"><arg name="object" type="o"/><arg name="interfaces" type="as"/></signal>
</interface>
)";

std::unexpected<BusError> standardError(const char* name, const QString& text)
{
    return std::unexpected(
        BusError{QStringLiteral("org.freedesktop.DBus.Error.") + QLatin1String(name), text});
}

QString errorName(ReplyKind kind)
{
    const auto* const name = kind == ReplyKind::usage ? "Usage"
        : kind == ReplyKind::unknownName              ? "UnknownName"
        : kind == ReplyKind::denied                   ? "Denied"
                                                      : "Refused";
    return QStringLiteral("com.fadeloom.app.Error.") + QLatin1String(name);
}

std::expected<QVariantList, BusError> answered(const BusOutcome& outcome)
{
    if (!outcome)
        return std::unexpected(outcome.error());
    return QVariantList();
}

}  // namespace

MixerBus::MixerBus(const QDBusConnection& connection, const ServedControl& control)
    : connection_(connection)
    , control_(control)
    , interfaces_(readBusInterfaces(QString::fromUtf8(busInterfaceText)))
    , callers_(connection)
    , announcer_((registerBusTypes(), connection), control.mainLoop, control.controller, control.version)
{
    callers_.whenDisconnected([this](const QString& sender) { unsubscribe(sender); });
}

QString MixerBus::introspect(const QString& path) const
{
    QString xml;
    QStringList children;
    const auto all = objects();
    for (const auto& name : all.value(QDBusObjectPath(path)).keys())
        xml += interfaces_.value(name).xml;
    if (path == bus::root) {
        xml += QLatin1String(managerXml);
        children = {QStringLiteral("apps"), QStringLiteral("outputs")};
    }
    for (const auto& object : all.keys()) {
        if (object.path().startsWith(path + QLatin1Char('/')) && path != bus::root)
            children.append(object.path().mid(path.size() + 1));
    }
    for (const auto& child : children)
        xml += QStringLiteral("<node name=\"%1\"/>\n").arg(child);
    return xml;
}

bool MixerBus::handle(const QDBusMessage& message)
{
    const auto interface = message.interface();
    const bool isOfQt = interface == QLatin1String("org.freedesktop.DBus.Introspectable")
        || interface == QLatin1String("org.freedesktop.DBus.Peer")
        || (interface.isEmpty() && message.member() == QLatin1String("Introspect"));
    if (isOfQt)
        return false;
    callers_.with(message.service(), [this, message](Caller caller) {
        const auto result = answer(message, caller);
        if (message.isReplyRequired())
            connection_.send(result ? message.createReply(*result)
                                    : message.createErrorReply(result.error().name, result.error().text));
    });
    return true;
}

BusObjects MixerBus::objects() const
{
    return busObjects(control_.controller, control_.version);
}

MixerBus::Answer MixerBus::answer(const QDBusMessage& message, Caller caller)
{
    const auto all = objects();
    const auto object = all.constFind(QDBusObjectPath(message.path()));
    if (object == all.constEnd())
        return standardError("UnknownObject", QStringLiteral("There is no object at ") + message.path());
    const auto interface = message.interface();
    if (interface == propertiesInterface)
        return property(message, *object, caller);
    if (interface == managerInterface && message.path() == bus::root
        && message.member() == QLatin1String("GetManagedObjects")) {
        auto below = all;
        below.remove(QDBusObjectPath(bus::root));
        return QVariantList{QVariant::fromValue(below)};
    }
    for (const auto& name : object->keys()) {
        if (!interface.isEmpty() && interface != name)
            continue;
        const auto& methods = interfaces_[name].methods;
        const auto method = methods.constFind(message.member());
        if (method == methods.constEnd())
            continue;
        if (message.signature() != *method)
            return standardError(
                "InvalidArgs", QStringLiteral("%1 takes \"%2\"").arg(message.member(), *method));
        if (name == bus::mixerInterface)
            return mixerMethod(message, caller);
        if (const auto id = appAtBusPath(control_.controller, message.path()))
            return appMethod(message, *id, caller);
    }
    return standardError("UnknownMethod", QStringLiteral("There is no method ") + message.member());
}

MixerBus::Answer MixerBus::property(const QDBusMessage& message, const BusObject& object, Caller caller)
{
    const auto arguments = message.arguments();
    const bool isOfAll =
        message.member() == QLatin1String("GetAll") && message.signature() == QLatin1String("s");
    const bool isOfOne =
        message.member() == QLatin1String("Get") && message.signature() == QLatin1String("ss");
    const bool isSetting =
        message.member() == QLatin1String("Set") && message.signature() == QLatin1String("ssv");
    if (!isOfAll && !isOfOne && !isSetting)
        return standardError("UnknownMethod", QStringLiteral("There is no method ") + message.member());
    const auto found = object.constFind(arguments[0].toString());
    if (found == object.constEnd()) {
        const auto name = arguments[0].toString();
        const bool isEmpty = name == propertiesInterface || name == managerInterface
            || name.startsWith(QLatin1String("org.freedesktop.DBus."));
        return isOfAll && isEmpty
            ? Answer(QVariantList{QVariantMap()})
            : standardError("UnknownInterface", QStringLiteral("There is no interface ") + name);
    }
    if (isOfAll)
        return QVariantList{*found};
    const auto value = found->constFind(arguments[1].toString());
    if (value == found->constEnd())
        return standardError(
            "UnknownProperty", QStringLiteral("There is no property ") + arguments[1].toString());
    if (isSetting)
        return setProperty(message, object, caller);
    return QVariantList{QVariant::fromValue(QDBusVariant(*value))};
}

MixerBus::Answer MixerBus::setProperty(const QDBusMessage& message, const BusObject&, Caller caller)
{
    const auto arguments = message.arguments();
    const auto interface = arguments[0].toString();
    const auto name = arguments[1].toString();
    const auto declared = interfaces_[interface].properties[name];
    if (!declared.isWritable)
        return standardError("PropertyReadOnly", name + QStringLiteral(" cannot be written"));
    const auto value = busValue(arguments[2].value<QDBusVariant>().variant(), declared.signature);
    if (!value.isValid())
        return standardError("InvalidArgs", QStringLiteral("%1 is a \"%2\"").arg(name, declared.signature));
    if (const auto id = appAtBusPath(control_.controller, message.path()))
        return answered(writeAppProperty(control_.controller, *id, name, value));
    if (caller == Caller::sandboxed)
        return std::unexpected(BusError::denied(name + QStringLiteral(" is not for programs in a sandbox")));
    return answered(writeMixerProperty(control_.controller, name, value));
}

MixerBus::Answer MixerBus::mixerMethod(const QDBusMessage& message, Caller caller)
{
    const auto arguments = message.arguments();
    const auto method = message.member();
    if (method == QLatin1String("Run"))
        return run(arguments[0].toStringList(), caller);
    if (method == QLatin1String("FindApp")) {
        const auto ids = appsNamed(control_.controller, control_.text, arguments[0].toString().toStdString());
        const auto& apps = *control_.controller.state().apps;
        const bool isListed = ids && ids->size() == 1
            && std::ranges::find(apps, ids->front(), &AppEntry::bundleID) != apps.end();
        if (!isListed)
            return std::unexpected(BusError{errorName(ReplyKind::unknownName),
                QString::fromStdString(ids ? "this is not one app in the mixer" : ids.error())});
        return QVariantList{QVariant::fromValue(busPathOfApp(ids->front()))};
    }
    if (method == QLatin1String("SubscribeLevels"))
        subscribe(message.service());
    else
        unsubscribe(message.service());
    return QVariantList();
}

MixerBus::Answer MixerBus::appMethod(const QDBusMessage& message, const std::string& id, Caller caller)
{
    auto& controller = control_.controller;
    const auto method = message.member();
    if (method == QLatin1String("ChangeVolume"))
        return QVariantList{changeVolume(controller, id, message.arguments()[0].toDouble())};
    if (method == QLatin1String("ToggleMuted")) {
        controller.editApp(id, [](AppAudioSettings& app) { app.muted = !app.muted; });
        return QVariantList{appSettings(*controller.state().settings, id).muted};
    }
    const auto* const change = method == QLatin1String("StartRecording") ? "start" : "stop";
    const auto done =
        run({QStringLiteral("record"), QString::fromStdString(id), QLatin1String(change)}, caller);
    return done ? Answer(QVariantList()) : done;
}

MixerBus::Answer MixerBus::run(const QStringList& words, Caller caller)
{
    // Commands with paths are not available on the bus.
    constexpr std::array withPaths = {"recordings", "export", "restore"};
    std::vector<std::string> command;
    for (const auto& word : words)
        command.push_back(word.toStdString());
    if (!command.empty() && std::ranges::find(withPaths, command.front()) != withPaths.end())
        return std::unexpected(BusError::denied(words.front() + QStringLiteral(" is not for the bus")));
    const auto reply = control_.commands.run(command, caller);
    if (reply.asksToQuit)
        control_.quit();
    const auto sentence = QString::fromStdString(reply.sentence());
    if (reply.kind != ReplyKind::ok)
        return std::unexpected(BusError{errorName(reply.kind), sentence});
    return QVariantList{sentence};
}

void MixerBus::subscribe(const QString& sender)
{
    subscribers_.insert(sender);
    if (levelsWanted_)
        return;
    levelsWanted_ = control_.controller.levels().want();
    levels_ = control_.controller.levels().levels().whenAssigned([this] { sendLevels(); });
}

void MixerBus::unsubscribe(const QString& sender)
{
    subscribers_.remove(sender);
    if (!subscribers_.isEmpty())
        return;
    levels_.reset();
    levelsWanted_.reset();
}

void MixerBus::sendLevels()
{
    BusLevels levels;
    for (const auto& [id, position] : *control_.controller.levels().levels())
        levels.insert(busPathOfApp(id), static_cast<double>(position));
    for (const auto& subscriber : std::as_const(subscribers_)) {
        auto signal = QDBusMessage::createTargetedSignal(
            subscriber, bus::root, bus::mixerInterface, QStringLiteral("Levels"));
        signal << QVariant::fromValue(levels);
        connection_.send(signal);
    }
}

}  // namespace fadeloom
