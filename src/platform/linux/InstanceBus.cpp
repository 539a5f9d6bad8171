// SPDX-License-Identifier: MIT
#include "platform/linux/InstanceBus.h"

#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVirtualObject>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <atomic>
#include <string>
#include <utility>

namespace fadeloom {

namespace {

const QString busName = QStringLiteral("com.fadeloom.app");
const QString objectPath = QStringLiteral("/com/fadeloom/app");
const QString treePath = objectPath + QStringLiteral("/Mixer1");
const QString interfaceName = busName;
const QString applicationInterface = QStringLiteral("org.freedesktop.Application");
const QString errorPrefix = QStringLiteral("com.fadeloom.app.Error.");

constexpr const char* applicationXml = R"(<interface name="org.freedesktop.Application">
<method name="Activate"><arg name="platform_data" type="a{sv}" direction="in"/></method>
<method name="Open"><arg name="uris" type="as" direction="in"/>
<arg name="platform_data" type="a{sv}" direction="in"/></method>
<method name="ActivateAction"><arg name="action_name" type="s" direction="in"/>
<arg name="parameter" type="av" direction="in"/><arg name="platform_data" type="a{sv}" direction="in"/></method>
</interface>)";

QString qName(std::string_view name)
{
    return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

QString newConnectionName()
{
    static std::atomic<int> count = 0;
    return QStringLiteral("fadeloom-instance-%1").arg(++count);
}

}  // namespace

class InstanceBus::Object final : public QDBusVirtualObject {
public:
    explicit Object(AnswerInstanceRequest answer)
        : answer_(std::move(answer))
    {
    }

    QString introspect(const QString&) const override
    {
        auto text = QStringLiteral("<interface name=\"%1\">").arg(interfaceName);
        for (const auto& each : instanceRequestNames)
            text += QStringLiteral("<method name=\"%1\"/>").arg(qName(each.name));
        return text + QStringLiteral("</interface>") + QLatin1String(applicationXml)
            + QStringLiteral("<node name=\"Mixer1\"/>");
    }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        const auto request = requestIn(message);
        if (!request)
            return false;
        const auto answer = answer_(*request);
        connection.send(answer == InstanceAnswer::done
                ? message.createReply()
                : message.createErrorReply(
                      errorPrefix + qName(nameOf(answer)), QStringLiteral("Fadeloom cannot do that now")));
        return true;
    }

private:
    static std::optional<InstanceRequest> requestIn(const QDBusMessage& message)
    {
        if (message.interface().isEmpty() || message.interface() == interfaceName)
            return instanceRequestNamed(message.member().toStdString());
        if (message.interface() != applicationInterface)
            return std::nullopt;
        if (message.member() == QLatin1String("Activate") || message.member() == QLatin1String("Open"))
            return InstanceRequest::open;
        // The names of actions are in lower case.
        const auto action = message.member() == QLatin1String("ActivateAction")
            ? message.arguments().value(0).toString()
            : QString();
        return instanceRequestNamed((action.left(1).toUpper() + action.mid(1)).toStdString());
    }

    const AnswerInstanceRequest answer_;
};

class InstanceBus::Tree final : public QDBusVirtualObject {
public:
    QString introspect(const QString& path) const override
    {
        return served != nullptr ? served->introspect(path) : QString();
    }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override
    {
        return served != nullptr && served->handle(message);
    }

    InstanceTree* served = nullptr;
};

InstanceBus::InstanceBus(AnswerInstanceRequest answer)
    : connectionName_(newConnectionName())
    , bus_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName_))
    , object_(std::make_unique<Object>(std::move(answer)))
    , tree_(std::make_unique<Tree>())
{
}

InstanceBus::~InstanceBus()
{
    bus_.unregisterObject(treePath);
    bus_.unregisterObject(objectPath);
    QDBusConnection::disconnectFromBus(connectionName_);
}

bool InstanceBus::claim()
{
    // Whoever sees the name may call immediately.
    if (!bus_.registerVirtualObject(objectPath, object_.get()))
        return false;
    bus_.registerVirtualObject(treePath, tree_.get(), QDBusConnection::SubPath);
    const auto answer = bus_.interface()->registerService(
        busName, QDBusConnectionInterface::DontQueueService, QDBusConnectionInterface::DontAllowReplacement);
    const bool isOurs = answer.isValid() && answer.value() == QDBusConnectionInterface::ServiceRegistered;
    if (!isOurs) {
        bus_.unregisterObject(treePath);
        bus_.unregisterObject(objectPath);
    }
    return isOurs;
}

void InstanceBus::serve(InstanceTree* tree)
{
    tree_->served = tree;
}

QDBusMessage InstanceBus::call(InstanceRequest request, std::chrono::milliseconds timeout)
{
    auto question =
        QDBusMessage::createMethodCall(busName, objectPath, interfaceName, qName(nameOf(request)));
    question.setAutoStartService(false);
    const auto wait = static_cast<int>(std::max(timeout, std::chrono::milliseconds(1)).count());
    return bus_.call(question, QDBus::Block, wait);
}

bool InstanceBus::isHeldByInstance(std::chrono::milliseconds timeout)
{
    const auto reply = call(InstanceRequest::ping, timeout);
    if (reply.type() == QDBusMessage::ReplyMessage || reply.errorName().startsWith(errorPrefix))
        return true;
    switch (QDBusError(reply).type()) {
    case QDBusError::ServiceUnknown:  // It has just exited: the name is free now.
        return true;
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
        return runsOurExecutable();
    default:
        return false;
    }
}

bool InstanceBus::runsOurExecutable() const
{
    const QDBusReply<uint> owner = bus_.interface()->servicePid(busName);
    if (!owner.isValid())
        return false;
    const auto executable = [](const QString& process) {
        return QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(process))).fileName();
    };
    const auto ours = executable(QStringLiteral("self"));
    return !ours.isEmpty() && executable(QString::number(owner.value())) == ours;
}

std::optional<InstanceAnswer> InstanceBus::ask(InstanceRequest request, std::chrono::milliseconds timeout)
{
    const auto reply = call(request, timeout);
    if (reply.type() == QDBusMessage::ReplyMessage)
        return InstanceAnswer::done;
    if (!reply.errorName().startsWith(errorPrefix))
        return std::nullopt;
    return instanceAnswerNamed(reply.errorName().mid(errorPrefix.size()).toStdString());
}

}  // namespace fadeloom
